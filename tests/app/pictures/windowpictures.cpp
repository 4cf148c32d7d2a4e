// Pictures of every window: windowpictures FOLDER LANGUAGE [CATALOGUE], best without a display:
// QT_QPA_PLATFORM=offscreen, and QT_SCALE_FACTOR for another scale. Nobody judges them here; they are looked
// at.

#include "stagedapp.h"

#include "app/desks/artworkdesk.h"
#include "app/desks/biosdesk.h"
#include "app/desks/changesdesk.h"
#include "app/desks/favouritesdesk.h"
#include "app/windows/favouriteswindow.h"
#include "app/desks/finding.h"
#include "app/windows/helpwindow.h"
#include "app/desks/infodesk.h"
#include "app/windows/mainwindow.h"
#include "app/desks/minidesk.h"
#include "app/windows/miniwindow.h"
#include "app/windows/preferenceswindow.h"
#include "app/windows/supportpage.h"
#include "artwork/ui/imagewindow.h"
#include "bios/ui/biospanel.h"
#include "catalogue/ui/chipbar.h"
#include "catalogue/ui/filterpanel.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/recordediting.h"
#include "catalogue/ui/recordeditor.h"
#include "catalogue/ui/gametablemodel.h"
#include "catalogue/ui/searchfield.h"
#include "favourites/ui/favouriteeditor.h"
#include "info/ui/historyobject.h"
#include "info/ui/historywindow.h"
#include "info/ui/sitechoice.h"
#include "launch/ui/logwindow.h"
#include "support/installedtexts.h"
#include "tools/ui/changeswindow.h"
#include "tools/ui/utilityobject.h"
#include "tools/ui/utilitywindow.h"
#include "widgets/theme.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

using namespace tessera;

namespace {

constexpr int settled = 400; // milliseconds: what is made beside the windows is there

/// Takes the windows' pictures, numbered as they come.
class Album
{
public:
    explicit Album(QString folder)
        : m_folder(std::move(folder))
    {
        QDir().mkpath(m_folder);
    }

    void take(QWidget& window, const QString& name)
    {
        window.show();
        QTest::qWait(settled);
        const QString number = QStringLiteral("%1").arg(++m_number, 2, 10, QLatin1Char('0'));
        const QString path = QStringLiteral("%1/%2-%3.png").arg(m_folder, number, name);
        if (!window.grab().save(path))
            qFatal("%s cannot be written", qPrintable(path));
    }

    /// One that is open already, and closes afterwards.
    void takeOpen(QWidget& popup, const QString& name)
    {
        take(popup, name);
        popup.close();
    }

private:
    QString m_folder;
    int m_number = 0;
};

void writeFile(const QString& path, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path).absolutePath());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("%s cannot be written", qPrintable(path));
}

// Two bats and a ball.
void paintSnapshot(const QString& path)
{
    QImage image(320, 240, QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    for (const QRect& part : {QRect(24, 60, 8, 48), QRect(288, 130, 8, 48), QRect(180, 100, 8, 8)})
        painter.fillRect(part, Qt::white);
    for (int y = 4; y < image.height(); y += 16)
        painter.fillRect(158, y, 4, 8, Qt::gray);
    painter.end();
    QDir().mkpath(QFileInfo(path).absolutePath());
    if (!image.save(path))
        qFatal("%s cannot be written", qPrintable(path));
}

void stage(test::StagedApp& staged, const QString& catalogue)
{
    if (catalogue.isEmpty())
        staged.writeCatalogue();
    else if (!QFile::copy(catalogue, staged.storePath()))
        qFatal("%s cannot be read", qPrintable(catalogue));
    paintSnapshot(staged.path(QStringLiteral("snap/pong.png")));
    writeFile(
        staged.path(QStringLiteral("history.dat")),
        "$info=pong,\r\n$bio\r\n\r\nPong (c) 11/1972 Atari.\r\n\r\nTwo bats, one ball.\r\n\r\n$end\r\n");
    staged.defaults.setValue(keys::SnapPath.name, staged.path(QStringLiteral("snap")));
    staged.defaults.setValue(keys::InfositeHost1.name, QStringLiteral("roms.example"));
    staged.defaults.setValue(keys::HistoryPath.name, staged.path(QStringLiteral("history.dat")));
}

// What a search marks, and what is only near.
void takeFound(test::App& app, Album& album)
{
    SearchField& field = *app.mainWindow().searchField;
    for (const auto& [text, name] :
         {std::pair(u"rtype", "search-punctuation"), std::pair(u"guradi", "search-romaji"),
          std::pair(u"gradious", "search-nearest")}) {
        field.setText(QString::fromUtf16(text));
        album.take(app.mainWindow(), QLatin1String(name));
    }
    field.clear();
}

void takeViews(test::App& app, Album& album)
{
    album.take(app.mainWindow(), QStringLiteral("main"));
    app.gameList().selectGame(QStringLiteral("pong"));
    album.take(app.mainWindow(), QStringLiteral("main-selected"));
    // What stands beside each other moves together, and beneath each other where it must.
    const QSize usual = app.mainWindow().size();
    for (const int width : {app.mainWindow().minimumSizeHint().width(), 800, 1000, 1200}) {
        app.mainWindow().resize(width, usual.height());
        album.take(app.mainWindow(), QStringLiteral("main-%1").arg(width));
    }
    app.mainWindow().resize(usual);
    takeFound(app, album);
    app.mainWindow().gameTable->sortByColumn(GameTableModel::columnOf(Field::Maker), Qt::DescendingOrder);
    app.mainWindow().gameTable->sortByColumn(GameTableModel::columnOf(Field::Year), Qt::AscendingOrder);
    album.take(app.mainWindow(), QStringLiteral("main-sorted-twice"));
    for (const char* set : {"pong", "qix", "galaga"}) {
        if (app.gameList().selectGame(QLatin1String(set)))
            app.addFavorite();
    }
    app.windowFavorites();
    app.favorites().window().favoritesTable->selectRow(0);
    album.take(app.favorites().window(), QStringLiteral("favourites"));
    QComboBox& sites = *app.favorites().window().siteChoice->infositePop2;
    sites.setCurrentIndex(sites.count() - 1);
    album.take(app.favorites().window(), QStringLiteral("favourites-own-site"));
    FavouritesWindow& favourites = app.favorites().window();
    favourites.searchField->setText(QStringLiteral("pon"));
    album.take(favourites, QStringLiteral("favourites-searched"));
    favourites.searchField->setText(QStringLiteral("nowhere"));
    favourites.resize(favourites.minimumSizeHint().width(), usual.height());
    album.take(favourites, QStringLiteral("favourites-nothing-found"));
    favourites.searchField->clear();
    favourites.resize(usual);
    app.windowMini();
    app.mini().setGame(QStringLiteral("pong"));
    album.take(app.mini().window(), QStringLiteral("mini"));
    app.windowMain();
}

// Searches that come back, and what the field opens.
void takeSearches(test::App& app, Album& album)
{
    MainWindow& window = app.mainWindow();
    for (const char* name : {"maker:namco -bootleg", "status:good year:1981", "パックマン"}) {
        window.searchField->setText(QString::fromUtf8(name));
        app.finding().searches().noteSearch();
        app.finding().searches().keepSearch();
        auto* panel = window.findChild<QDialog*>(QStringLiteral("searchNamePanel"));
        album.take(*panel, QStringLiteral("search-name"));
        panel->findChild<QPushButton*>(QStringLiteral("searchNameButton"))->click();
        QTest::qWait(settled);
    }
    window.searchField->setText(QStringLiteral("maker:namco -bootleg"));
    album.take(window, QStringLiteral("kept-searches"));
    auto* chip = window.chipBar->findChild<QAbstractButton*>(QStringLiteral("keptChip_1"));
    Q_EMIT chip->customContextMenuRequested(chip->rect().bottomLeft());
    album.takeOpen(*window.chipBar->findChild<QMenu*>(), QStringLiteral("kept-search-menu"));
    window.searchField->openLastSearches();
    for (auto* menu : window.searchField->findChildren<QMenu*>()) {
        if (menu->isVisible())
            album.takeOpen(*menu, QStringLiteral("last-searches"));
    }
    window.searchField->clear();
    window.activateWindow();
    std::ignore = QTest::qWaitForWindowActive(&window);
    window.searchField->setFocus();
    QTest::keyClicks(window.searchField, QStringLiteral("maker:na"));
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->objectName() == QStringLiteral("makerPopup") && widget->isVisible())
            album.takeOpen(*widget, QStringLiteral("makers"));
    }
    window.searchField->clear();
}

void takePanels(test::App& app, Album& album)
{
    app.gameList().selectGame(QStringLiteral("pong"));
    album.take(app.editing().editor(), QStringLiteral("record-editor"));
    album.take(app.favorites().editing().editor(), QStringLiteral("favourites-editor"));
    app.showPredicatePanel();
    album.take(app.finding().panel(), QStringLiteral("filter"));
    app.snappreview();
    album.take(app.artwork().imageWindow(), QStringLiteral("image"));
    app.info().searchHistoryinfo_menu(2);
    album.take(app.info().window(), QStringLiteral("history"));
    album.take(app.bios().panel(), QStringLiteral("bios"));
    app.windowLog();
    album.take(app.logWindow(), QStringLiteral("log"));
    album.take(app.changes().window(), QStringLiteral("changes"));
    for (int tab = 0; tab < app.helpWindow().helpTabview->count(); ++tab) {
        app.helpWindow().helpTabview->setCurrentIndex(tab);
        album.take(app.helpWindow(), QStringLiteral("help-%1").arg(tab));
    }
}

void takePages(test::App& app, Album& album)
{
    app.showPrefsWindow();
    PreferencesWindow& preferences = app.preferencesWindow();
    for (QToolButton* item : preferences.findChildren<QToolButton*>()) {
        if (item->property("role") != QStringLiteral("page"))
            continue;
        item->click();
        album.take(preferences, QStringLiteral("preferences-") + item->objectName());
    }
    preferences.findChild<QToolButton*>(QStringLiteral("support"))->click();
    QTabBar& strip = *preferences.supportPage().strip;
    for (int segment = 1; segment < strip.count(); ++segment) {
        strip.setCurrentIndex(segment);
        album.take(preferences, QStringLiteral("preferences-support-%1").arg(segment));
    }
    UtilityWindow& tools = app.utility().utilityWindow();
    for (int page = 0; page < tools.pageList->count(); ++page) {
        tools.pageList->setCurrentRow(page);
        album.take(tools, QStringLiteral("tools-%1").arg(page));
    }
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("Tessera"));
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 3)
        qFatal("windowpictures FOLDER LANGUAGE [CATALOGUE]");
    const test::InstalledTexts texts(arguments[2]);
    QLocale::setDefault(QLocale(arguments[2]));
    theme::apply(application);
    test::StagedApp staged;
    stage(staged, arguments.value(3));
    staged.start();
    Album album(arguments[1]);
    takeViews(*staged.app, album);
    takeSearches(*staged.app, album);
    takePanels(*staged.app, album);
    takePages(*staged.app, album);
    staged.desktop.takeTranscript();
}
