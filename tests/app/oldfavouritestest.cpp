#include "stagedapp.h"

#include "app/desks/favouritesdesk.h"
#include "app/desks/finding.h"
#include "app/windows/mainwindow.h"
#include "catalogue/ui/searchfield.h"
#include "support/testmain.h"
#include "tools/favouritesconversion.h"
#include "tools/ui/favouritespage.h"
#include "tools/ui/utilityobject.h"
#include "tools/ui/utilitywindow.h"

#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

using namespace tessera;

namespace {

struct Stage : test::StagedApp {
    Stage()
    {
        qputenv("XDG_DATA_HOME", QFile::encodeName(path("share")));
        QDir().mkpath(path("share"));
        writeCatalogue();
        write("old.xml",
              "<plist version=\"1.0\"><array><dict><key>romid</key><string>qix</string></dict>"
              "<dict><key>romid</key><string>pong</string></dict></array></plist>");
    }

    void write(const QString& name, const QByteArray& bytes)
    {
        QFile file(path(name));
        QVERIFY(QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    FavouritesPage& page() { return *app->utility().utilityWindow().favouritesPage; }
    QStringList favourites() { return app->favorites().favourites().names(); }

    void convert()
    {
        app->utilityOrderFront();
        app->utility().utilityWindow().pageList->setCurrentRow(4);
        page().favoritesTextField->setText(path("old.xml"));
        desktop.answerAlert("alert_Info2", 0);
        QTest::mouseClick(page().button_convert3, Qt::LeftButton);
    }
};

} // namespace

/// The conversion of old favourites in the whole program.
class OldFavouritesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { qunsetenv("XDG_DATA_HOME"); }

    void theFavouritesAreThereAtOnce()
    {
        Stage stage;
        stage.start();
        stage.convert();
        QCOMPARE(stage.favourites(), QStringList({"qix", "pong"}));
        QCOMPARE(stage.app->favorites().favourites().value(1, FavouriteKey::Titlejp), "ポン");
        QTRY_VERIFY(QFile::exists(stage.path("share/Trash/files/old.xml")));
        stage.desktop.takeTranscript();
    }

    void machinesThatAreHiddenAreNotFound()
    {
        Stage stage;
        stage.start();
        stage.app->utilityOrderFront();
        QVERIFY(!stage.page().button_showAll->isVisibleTo(&stage.page()));
        stage.app->mainWindow().searchField->setText("pong");
        QTRY_VERIFY(stage.page().button_showAll->isVisibleTo(&stage.page()));
        stage.convert();
        QCOMPARE(stage.favourites(), QStringList{"pong"});
        QVERIFY(stage.desktop.takeTranscript().contains("log qix は見つかりませんでした"));
    }

    void showAllHidesNothingAnyMore()
    {
        Stage stage;
        stage.start();
        stage.app->utilityOrderFront();
        stage.app->utility().utilityWindow().pageList->setCurrentRow(4);
        stage.app->mainWindow().searchField->setText("pong");
        QTRY_VERIFY(stage.page().button_showAll->isVisible());
        QTest::mouseClick(stage.page().button_showAll, Qt::LeftButton);
        QTRY_VERIFY(!stage.page().button_showAll->isVisible());
        stage.convert();
        QCOMPARE(stage.favourites(), QStringList({"qix", "pong"}));
        stage.desktop.takeTranscript();
    }

    void favouritesThatWereNotSavedGoToAFileOfTheirOwn()
    {
        Stage stage;
        stage.start();
        stage.app->favorites().controller().addFavoritesTable(stage.app->catalogue().records()[0]);
        const QString added = stage.favourites().constFirst();
        stage.convert();
        QCOMPARE(stage.favourites(), QStringList({"qix", "pong"}));
        const QFileInfo file(stage.app->favorites().favourites().path());
        const QString kept = file.path() + "/jp.Plover.Tessera_Favorites 2026-01-02 03-04-05.xml";
        Favourites unsaved(kept);
        QVERIFY(unsaved.open());
        QCOMPARE(unsaved.names(), QStringList{added});
        stage.desktop.takeTranscript();
    }

    void savedFavouritesNeedNoFileOfTheirOwn()
    {
        Stage stage;
        stage.start();
        stage.app->favorites().controller().addFavoritesTable(stage.app->catalogue().records()[0]);
        stage.app->saveFavouritesNow();
        stage.convert();
        const QFileInfo file(stage.app->favorites().favourites().path());
        QCOMPARE(file.dir().entryList({"*Favorites*.xml"}, QDir::Files).size(), 2);
        QVERIFY(QFile::exists(file.path() + "/jp.Plover.Tessera_Favorites_2026-01-02_030405.xml"));
        stage.desktop.takeTranscript();
    }
};

TESSERA_TEST(OldFavouritesTest);
#include "oldfavouritestest.moc"
