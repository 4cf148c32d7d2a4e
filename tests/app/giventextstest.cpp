#include "support/installedtexts.h"
#include "support/testmain.h"

/// Questions and answers whose English words are given, as the English table has them.
class GivenTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theWordsAreTheGivenOnes_data()
    {
        QTest::addColumn<QString>("words");
        const auto row
            = [](const char* key, const char* words) { QTest::newRow(key) << QString::fromLatin1(words); };
        row("quit_unsaved_message", "Could not save changes while quitting. Quit anyway?");
        row("quit_anyway", "Quit anyway");
        row("favorites_remove_message", "Remove selected data?");
        row("favorites_remove_info", "If you stop processing, please choose Cancel.");
        row("remove", "Remove");
        row("cancel", "Cancel");
    }
    void theWordsAreTheGivenOnes()
    {
        const tessera::test::InstalledTexts english(QStringLiteral("en"));
        QTEST(qtTrId(QTest::currentDataTag()), "words");
    }
};

TESSERA_TEST(GivenTextsTest);
#include "giventextstest.moc"
