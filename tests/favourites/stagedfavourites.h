#pragma once

#include "catalogue/catalogue.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "support/writestore.h"
#include "favourites/favourites.h"
#include "favourites/favouritespath.h"
#include "favourites/playedgames.h"
#include "favourites/ui/favouritestablemodel.h"
#include "favourites/ui/ucappcontroller.h"
#include "platform/defaultscontroller.h"
#include "support/scripteddesktop.h"

#include "favouritetexts.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTest>

namespace tessera::test {

/// The favourites with their table on a scripted desktop. The catalogue holds pong and bare; the game that is
/// selected in it is the test's to say.
class StagedFavourites
{
public:
    StagedFavourites()
        : defaults(path(QStringLiteral("settings.ini")))
        , controls(defaults)
        , catalogue(path(QStringLiteral("Tessera.xml")))
        , favourites(favouritesPath(path(QStringLiteral("support"))))
        , played(playedPath(favourites.path()))
    {
        controls.setInitialValues(QStringLiteral("Inter"), QStringLiteral("/home/somebody"));
        (void)writeStore(catalogue.path(), std::array{pong, bare});
        (void)catalogue.open();
    }

    /// Puts a favourites file where it belongs.
    void writeFile(const QByteArray& values)
    {
        QDir().mkpath(QFileInfo(favourites.path()).path());
        QVERIFY(writeBytes(favourites.path(), listFile(values)));
    }
    QByteArray file() const { return bytesOf(favourites.path()); }

    /// Start-up as the program does it: the window is made when it is first shown.
    void start()
    {
        startUnseen();
        showTable();
    }
    void startUnseen()
    {
        controller = std::make_unique<UCAppController>(
            FavouritesParts{desktop, controls, favourites, played, catalogue, games});
        controller->awakeFromNib();
    }
    void showTable()
    {
        table = std::make_unique<GameTableView>();
        table->followRowHeight(controls);
        controller->setTable(table.get());
        controller->favorites_tableViewSort();
        table->resize(800, 300);
        table->show();
    }

    QStringList shownNames() const
    {
        QStringList names;
        for (int row = 0; row < controller->model()->rowCount(); ++row)
            names << controller->model()->index(row, 0).data().toString();
        return names;
    }
    QVariant shown(int row, FavouriteColumn column, int role = Qt::DisplayRole) const
    {
        return controller->model()->index(row, static_cast<int>(column)).data(role);
    }
    QVariant storedSelection() const { return defaults.value(keys::FavoriteTable.name).value_or(QVariant()); }

    QString path(const QString& name) const { return folder.filePath(name); }

    QTemporaryDir folder;
    ScriptedDesktop desktop;
    UserDefaults defaults;
    DefaultsController controls;
    Catalogue catalogue;
    Favourites favourites;
    PlayedGames played;
    GameListController games{catalogue, desktop, controls}; ///< follows the catalogue
    std::unique_ptr<GameTableView> table;
    std::unique_ptr<UCAppController> controller;
};

} // namespace tessera::test
