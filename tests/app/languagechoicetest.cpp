#include "app/windows/languagechoice.h"

#include "platform/defaultscontroller.h"
#include "stagedapp.h"
#include "support/rows.h"
#include "support/testmain.h"

#include <QTemporaryDir>

using namespace tessera;

namespace {

struct Room {
    QTemporaryDir folder;
    UserDefaults settings{folder.filePath(QStringLiteral("settings.ini"))};
    DefaultsController defaults{settings};
    LanguageChoice choice{defaults};

    void choose(int position)
    {
        choice.setCurrentIndex(position);
        Q_EMIT choice.activated(position);
    }
};

} // namespace

class LanguageChoiceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyLanguageIsNamedInItself()
    {
        const Room room;
        QCOMPARE(room.choice.itemText(0), QStringLiteral("appearance_language_system"));
        QCOMPARE(room.choice.itemText(1), QStringLiteral("English"));
        QCOMPARE(room.choice.itemText(2), QString::fromUtf8("日本語"));
        QCOMPARE(room.choice.count(), 3);
    }

    void theStoredLanguageIsShown()
    {
        Room room;
        room.settings.setValue(keys::Language.name, QStringLiteral("en"));
        Q_EMIT room.defaults.changed(QString());
        QCOMPARE(room.choice.currentIndex(), 1);
        room.choose(1);
        QCOMPARE(room.settings.string(keys::Language.name), QStringLiteral("en"));
    }

    void theLanguageIsStoredByItsCode()
    {
        Room room;
        QCOMPARE(room.choice.currentIndex(), 0);
        room.choose(2);
        QCOMPARE(room.settings.string(keys::Language.name), QStringLiteral("ja"));
        room.choose(0);
        QVERIFY(!room.settings.value(keys::Language.name));
    }

    void aLanguageThatIsNotThereIsTheSystems()
    {
        Room room;
        room.settings.setValue(keys::Language.name, QStringLiteral("xx"));
        Q_EMIT room.defaults.changed(QString());
        QCOMPARE(room.choice.currentIndex(), 0);
    }

    void itStandsUnderTheLooksInThePreferences()
    {
        test::StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->showPrefsWindow();
        const auto* choice = staged.app->preferencesWindow().findChild<LanguageChoice*>();
        QCOMPARE(choice->accessibleName(), QStringLiteral("appearance_language"));
        QCOMPARE(test::rowsOf(*choice->parentWidget()).mid(8),
                 QStringList({"---", "appearance_language: languagePop", "appearance_language_note:"}));
    }
};

TESSERA_TEST(LanguageChoiceTest);
#include "languagechoicetest.moc"
