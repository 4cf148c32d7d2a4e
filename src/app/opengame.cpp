#include "app/opengame.h"

#include "app/tessera_appdelegate.h"
#include "catalogue/ui/gamelistcontroller.h"

#include <algorithm>

namespace tessera {

// Nothing that hides it stands in the way.
bool openGame(Tessera_AppDelegate& app, const QString& name)
{
    if (!app.gameList().selectGame(name)) {
        const auto records = app.catalogue().records();
        const std::string bytes = name.toStdString();
        if (std::ranges::none_of(records,
                                 [&](const GameRecord& record) { return record[Field::Name] == bytes; }))
            return false;
        app.showAllGames();
        app.gameList().selectGame(name);
    }
    app.windowMain();
    return true;
}

} // namespace tessera
