#include "favourites/optionwords.h"

#include "support/testmain.h"

using namespace tessera;

class OptionWordsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void optionsAreTheWordsThatBeginWithAMinus_data()
    {
        QTest::addColumn<QString>("words");
        QTest::addColumn<QStringList>("options");
        const auto row = [](const char* name, const char* words, const QStringList& options) {
            QTest::newRow(name) << QString::fromUtf8(words) << options;
        };
        row("none", "", {});
        row("one", "-cheat", {QStringLiteral("-cheat")});
        row("a value", "-bios euro -cheat", {QStringLiteral("-bios"), QStringLiteral("-cheat")});
        row("a negative number", "-volume -12 -x -0.5", {QStringLiteral("-volume"), QStringLiteral("-x")});
        row("two blanks", "-cheat  -autosave", {QStringLiteral("-cheat"), QStringLiteral("-autosave")});
        row("a minus alone", "- -cheat", {QStringLiteral("-cheat")});
        row("other blanks part nothing", "-cheat\t-x", {QStringLiteral("-cheat\t-x")});
    }
    void optionsAreTheWordsThatBeginWithAMinus()
    {
        QFETCH(QString, words);
        QFETCH(QStringList, options);
        QCOMPARE(optionsOf(words), options);
    }

    void unknownOptionsAreNamedOnce()
    {
        const auto lists = [](QStringView option) { return option == QStringLiteral("-cheat"); };
        QCOMPARE(unknownOptions(QStringLiteral("-cheat -old 1 -older -old"), lists),
                 (QStringList{QStringLiteral("-old"), QStringLiteral("-older")}));
        QCOMPARE(unknownOptions(QStringLiteral("-cheat"), lists), QStringList());
    }

    void theWordBeforeTheCursorIsFound_data()
    {
        QTest::addColumn<int>("cursor");
        QTest::addColumn<int>("begin");
        QTest::addColumn<QString>("word");
        QTest::newRow("at the beginning") << 0 << 0 << QString();
        QTest::newRow("within the first") << 3 << 0 << QStringLiteral("-ch");
        QTest::newRow("behind the first") << 6 << 0 << QStringLiteral("-cheat");
        QTest::newRow("between the two") << 7 << 7 << QString();
        QTest::newRow("within the second") << 9 << 7 << QStringLiteral("-a");
    }
    void theWordBeforeTheCursorIsFound()
    {
        QFETCH(int, cursor);
        QFETCH(int, begin);
        QFETCH(QString, word);
        const WordAt found = wordBefore(QStringLiteral("-cheat -autosave"), cursor);
        QCOMPARE(found.begin, qsizetype(begin));
        QCOMPARE(found.word, word);
    }
};

TESSERA_TEST(OptionWordsTest);
#include "optionwordstest.moc"
