#include "app/utilityjoin.h"

#include "app/cataloguerebuild.h"
#include "app/changesdesk.h"
#include "app/favoritesdesk.h"
#include "app/finding.h"
#include "app/opengame.h"
#include "app/tessera_appdelegate.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "tools/ui/favouritestool.h"
#include "tools/ui/utilityobject.h"

#include <algorithm>

namespace tessera {

namespace {

UtilityHooks hooksOf(Tessera_AppDelegate& app, DefaultsController& defaults)
{
    UtilityHooks hooks;
    hooks.search_arrangedObjects = [&app](const QStringList& names) {
        return app.gameList().search_arrangedObjects(Field::Name, names);
    };
    hooks.hiddenRecords = [&app] {
        const std::size_t all = app.catalogue().records().size();
        return all - std::min(all, app.gameList().list().size());
    };
    hooks.showAllRecords = [&app] { app.showAllGames(); };
    hooks.openGame = [&app](const QString& name) { return openGame(app, name); };
    hooks.emulator = [&app] { return app.emulator(); };
    hooks.romFolder = [&defaults] { return defaults.text(keys::RomsPath); };
    hooks.useAsCatalogue = [&app](const QString& path) {
        app.commitEditing();
        return app.rebuild().useFile(path);
    };
    hooks.showChanges = [&app] { app.changes().showChanges(); };
    UCAppController& favourites = app.favorites().controller();
    hooks.pathOfDataFile = [&favourites] { return favourites.pathOfDataFile(); };
    hooks.dir_make = [&favourites](const QString& path) { favourites.dir_make(path); };
    hooks.set_favorites = [&favourites] { favourites.set_favorites(); };
    hooks.keepUnsavedFavorites = [&favourites] { return favourites.keepUnsaved(); };
    return hooks;
}

} // namespace

std::unique_ptr<UtilityObject> makeUtility(Tessera_AppDelegate& app, Desktop& desktop,
                                           DefaultsController& defaults)
{
    auto utility = std::make_unique<UtilityObject>(desktop, defaults, hooksOf(app, defaults));
    FavouritesTool* favourites = &utility->favourites();
    QObject::connect(&app.finding(), &Finding::changed, favourites, &FavouritesTool::showHidden);
    QObject::connect(&app.gameList(), &GameListController::countChanged, favourites,
                     &FavouritesTool::showHidden);
    return utility;
}

} // namespace tessera
