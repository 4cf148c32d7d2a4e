#include "tools/ui/favouritestool.h"

#include "core/propertylist.h"
#include "tools/favouritesconversion.h"
#include "tools/ui/favouritespage.h"
#include "tools/utilitystage.h"

#include <QLineEdit>
#include <QListWidget>

using namespace tessera;

namespace {

QByteArray oldList(const QStringList& names)
{
    QByteArray list = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<array>\n";
    for (const QString& name : names)
        list += "<dict><key>romid</key><string>" + name.toUtf8() + "</string></dict>\n";
    return list + "</array>\n</plist>\n";
}

struct Stage : test::UtilityStage {
    FavouritesPage& page = *window.favouritesPage;
    QString old;

    explicit Stage(const QByteArray& bytes = oldList({"qix", "pong"}))
    {
        // The Trash is in here, too.
        qputenv("XDG_DATA_HOME", QFile::encodeName(path("share")));
        QDir().mkpath(path("share"));
        rooms.games = QStringList{"1943", "pong", "qix"};
        rooms.favourites = path("data/favourites.xml");
        rooms.unsaved = QString();
        old = file("old.xml", bytes);
        window.pageList->setCurrentRow(4);
        window.show();
        page.favoritesTextField->setText(old);
    }

    void answer(int button) { desktop.answerAlert("alert_Info2", button); }
    void convert() { press(page.button_convert3); }
    bool isInTrash(const QString& name) const { return QFile::exists(path("share/Trash/files/") + name); }

    QStringList favourites() const
    {
        QStringList names;
        const auto list = readPropertyList(rooms.favourites);
        if (!list)
            return names;
        for (const PropertyList& entry : list->items())
            names << entry.text("name").value_or(QString());
        return names;
    }

    QStringList backups() const
    {
        return QDir(path("data")).entryList({"jp.Plover.Tessera_Favorites_*.xml"});
    }
};

} // namespace

class FavouritesToolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qunsetenv("XDG_DATA_HOME"); }

    void convertsAndPutsTheOldFileIntoTheTrash()
    {
        Stage stage;
        stage.answer(0);
        stage.convert();
        QCOMPARE(stage.information(), "File conversion is now complete.");
        QCOMPARE(stage.favourites(), QStringList({"qix", "pong"}));
        QCOMPARE(stage.rooms.told,
                 QStringList({"keep unsaved", "make " + stage.path("data"), "read favourites"}));
        QCOMPARE(stage.desktop.transcript(), QStringList({"beep", "alert alert_Info2", "sound st_ovenbell"}));
        QTRY_VERIFY(stage.isInTrash("old.xml"));
        QVERIFY(!QFile::exists(stage.old));
        QVERIFY(!stage.isIndicatorRunning());
    }

    void theQuestionHasItsTextsAndButtons()
    {
        Stage stage;
        stage.answer(1);
        stage.convert();
        const Alert& alert = stage.desktop.alerts.front();
        QCOMPARE(alert.message, "alert_Info2");
        QCOMPARE(alert.informative, "alert_Info3");
        QCOMPARE(alert.buttons, QStringList({"Yes", "No"}));
        QCOMPARE(alert.style, Alert::Style::Informational);
    }

    void noEndsItWithoutAWord()
    {
        Stage stage;
        stage.answer(1);
        stage.convert();
        QCOMPARE(stage.information(), QString());
        QCOMPARE(stage.desktop.transcript(), QStringList({"beep", "alert alert_Info2"}));
        QVERIFY(stage.rooms.told.isEmpty());
        QVERIFY(QFile::exists(stage.old));
        QVERIFY(!QFile::exists(stage.rooms.favourites));
    }

    void aMissingFileIsToldInAnAlert()
    {
        Stage stage;
        stage.page.favoritesTextField->setText(stage.path("none"));
        stage.desktop.answerAlert("alert_Info6", 0);
        stage.convert();
        const Alert& alert = stage.desktop.alerts.front();
        QCOMPARE(alert.informative, QString());
        QCOMPARE(alert.buttons, QStringList({"OK"}));
        QCOMPARE(stage.information(), "Old Favorites.xml file is not found.");
        QCOMPARE(stage.desktop.transcript(), QStringList({"beep", "alert alert_Info6"}));
    }

    void setsOutsideTheListAreDroppedAndTheOthersKeepTheirOrder()
    {
        Stage stage(oldList({"qix", "gone", "1943", "hidden", "pong"}));
        stage.answer(0);
        stage.convert();
        QCOMPARE(stage.favourites(), QStringList({"qix", "1943", "pong"}));
        QCOMPARE(stage.page.resultText->text(), "favourites_left_out");
        QCOMPARE(stage.information(), "File conversion is now complete.");
        stage.desktop.takeTranscript();
    }

    void aSetThatStandsTwiceComesTwice()
    {
        Stage stage(oldList({"pong", "qix", "pong"}));
        stage.answer(0);
        stage.convert();
        QCOMPARE(stage.favourites(), QStringList({"pong", "qix", "pong"}));
        stage.desktop.takeTranscript();
    }

    void withAnEmptyCatalogueNothingIsFound()
    {
        Stage stage;
        stage.rooms.games.clear();
        stage.file("data/favourites.xml", "present");
        stage.answer(0);
        stage.convert();
        QCOMPARE(stage.information(), "Conversion data not found.");
        QCOMPARE(stage.read("data/favourites.xml"), QByteArray("present"));
        QVERIFY(stage.backups().isEmpty());
        QVERIFY(QFile::exists(stage.old));
        QVERIFY(stage.rooms.told.isEmpty());
        // It rings all the same.
        QCOMPARE(stage.desktop.transcript(), QStringList({"beep", "alert alert_Info2", "sound st_ovenbell"}));
        QVERIFY(!stage.isIndicatorRunning());
    }

    void aFileThatIsNoListHoldsNoData()
    {
        Stage stage("no property list");
        stage.answer(0);
        stage.convert();
        QCOMPARE(stage.information(), "Conversion data not found.");
        QVERIFY(!stage.page.resultText->text().isEmpty());
        QVERIFY(QFile::exists(stage.old));
        stage.desktop.takeTranscript();
    }

    void thePresentFavouritesAreRenamedFirst()
    {
        Stage stage;
        stage.file("data/favourites.xml", "present");
        stage.answer(0);
        stage.convert();
        QCOMPARE(stage.backups(), QStringList{"jp.Plover.Tessera_Favorites_2026-01-02_030405.xml"});
        QCOMPARE(stage.read("data/" + stage.backups().first()), QByteArray("present"));
        QCOMPARE(stage.desktop.transcript(),
                 QStringList({"beep", "alert alert_Info2", "log Backup files are copied successfully",
                              "sound st_ovenbell"}));
        QCOMPARE(stage.favourites(), QStringList({"qix", "pong"}));
    }

    void twoConversionsInASecondOverwriteAndSayThatTheBackupFailed()
    {
        Stage stage;
        stage.file("data/favourites.xml", "present");
        stage.answer(0);
        stage.convert();
        QTRY_VERIFY(stage.isInTrash("old.xml"));
        stage.file("old.xml", oldList({"1943"}));
        stage.desktop.takeTranscript();
        stage.answer(0);
        stage.desktop.answerError("favourites_not_kept");
        stage.convert();
        QCOMPARE(stage.desktop.transcript(),
                 QStringList({"beep", "alert alert_Info2", "log Could not copy the backup files",
                              "error favourites_not_kept", "sound st_ovenbell"}));
        QCOMPARE(stage.backups().size(), 1);
        QCOMPARE(stage.read("data/" + stage.backups().first()), QByteArray("present"));
        QCOMPARE(stage.favourites(), QStringList{"1943"});
    }

    void aFileThatCannotBeWrittenIsNotSpokenOf()
    {
        Stage stage;
        // What stands there is no folder.
        stage.file("data", "");
        stage.answer(0);
        stage.convert();
        QCOMPARE(stage.information(), QString());
        QCOMPARE(stage.desktop.transcript(), QStringList({"beep", "alert alert_Info2", "sound st_ovenbell"}));
        QVERIFY(QFile::exists(stage.old));
        QVERIFY(!stage.rooms.told.contains("read favourites"));
        QVERIFY(!stage.isIndicatorRunning());
    }

    void aTrashThatFailsIsLogged()
    {
        Stage stage;
        // Nothing can be moved into a file.
        stage.file("share/Trash", "");
        stage.answer(0);
        stage.convert();
        QTRY_COMPARE(stage.desktop.transcript().size(), 4);
        QStringList lines = stage.desktop.takeTranscript();
        const QString error = lines.filter("log error: ").value(0);
        QVERIFY2(error.size() > QStringLiteral("log error: ").size(), qPrintable(lines.join('\n')));
        lines.removeOne(error);
        QCOMPARE(lines, QStringList({"beep", "alert alert_Info2", "sound st_ovenbell"}));
        QVERIFY(QFile::exists(stage.old));
        QCOMPARE(stage.information(), "File conversion is now complete.");
    }

    void theChosenPathIsStoredAsThatOfTheList()
    {
        Stage stage;
        stage.desktop.answerOpen("/chosen/old.xml");
        QTest::mouseClick(stage.window.findChild<QPushButton*>("button_favorites"), Qt::LeftButton);
        QCOMPARE(stage.page.favoritesTextField->text(), "/chosen/old.xml");
        QCOMPARE(stage.defaults.string(keys::listxmlPath.name), "/chosen/old.xml");
        QVERIFY(!stage.defaults.value(keys::old_favoritesfile.name));
    }

    void theFieldShowsTheUsualPlace()
    {
        test::UtilityStage stage;
        QCOMPARE(stage.window.favouritesPage->favoritesTextField->text(),
                 "/home/Library/Preferences/jp.Plover.Tessera_Favorites.xml");
    }

    void whatWasNotSavedIsKeptAndNamed()
    {
        Stage stage;
        stage.rooms.unsaved = "/kept.xml";
        stage.answer(0);
        stage.convert();
        QVERIFY(stage.page.resultText->isVisible());
        QCOMPARE(stage.page.resultText->text(), "favourites_unsaved_kept");
        stage.desktop.takeTranscript();
    }

    void whatCannotBeKeptIsNotReplaced()
    {
        Stage stage;
        stage.rooms.unsaved = std::unexpected(Failure{"failure_write", {}});
        stage.file("data/favourites.xml", "present");
        stage.answer(0);
        stage.convert();
        QCOMPARE(stage.information(), "failure_write");
        QCOMPARE(stage.read("data/favourites.xml"), QByteArray("present"));
        QVERIFY(QFile::exists(stage.old));
        stage.desktop.takeTranscript();
    }

    void theNewFileIsNoOldOne()
    {
        Stage stage;
        stage.rooms.favourites = stage.old;
        stage.answer(0);
        stage.convert();
        QCOMPARE(stage.favourites(), QStringList({"qix", "pong"}));
        // Files go into the Trash one after another: what comes there later would come behind this one.
        // A backup has another name in another second.
        stage.desktop.clock = stage.desktop.clock.addSecs(1);
        stage.page.favoritesTextField->setText(stage.file("next.xml", oldList({"1943"})));
        stage.answer(0);
        stage.convert();
        QTRY_VERIFY(stage.isInTrash("next.xml"));
        QVERIFY(!stage.isInTrash("old.xml"));
        QVERIFY(QFile::exists(stage.rooms.favourites));
        stage.desktop.takeTranscript();
    }

    void saysHowManyMachinesAreHidden()
    {
        Stage stage;
        QVERIFY(!stage.page.button_showAll->isVisible());
        stage.rooms.hidden = 3;
        stage.utility.favourites().showHidden();
        QVERIFY(stage.page.button_showAll->isVisible());
        QCOMPARE(stage.page.hiddenText->text(), "favourites_hidden");
        QTest::mouseClick(stage.page.button_showAll, Qt::LeftButton);
        QCOMPARE(stage.rooms.told, QStringList{"show all"});
        stage.rooms.hidden = 0;
        stage.utility.favourites().showHidden();
        QVERIFY(!stage.page.button_showAll->isVisible());
    }
};

TESSERA_TEST(FavouritesToolTest);
#include "favouritestooltest.moc"
