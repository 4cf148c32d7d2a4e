#pragma once

#include "catalogue/catalogue.h"
#include "support/writestore.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametablemodel.h"
#include "catalogue/ui/gametableview.h"
#include "platform/defaultscontroller.h"
#include "support/scripteddesktop.h"

#include <QTemporaryDir>

#include <array>
#include <memory>

namespace tessera::test {

inline GameRecord machine(std::string_view name, std::string_view parent, std::string_view year,
                          std::string_view status)
{
    return GameRecord{{"game", name, parent, name, name, year, "Maker", status, ""}};
}

inline const std::array machines{
    machine("abc", "abc", "1999", "preliminary"), machine("Zed", "Zed", "1980", "imperfect"),
    machine("zed", "abc", "1970", "good"),        machine("", "", "1990", "good"),
    machine("mid", "mid", "1980", "unusual"),
};

/// The table over a catalogue of five machines, with its commands.
struct StagedTable {
    StagedTable()
        : defaults(folder.filePath(QStringLiteral("settings.ini")))
        , controls(defaults)
        , catalogue(stored())
        , list(catalogue, desktop, controls)
        , table(std::make_unique<GameTableView>())
    {
        table->resize(900, 400);
        list.setTable(table.get());
        if (!catalogue.open())
            qFatal("no records");
        list.main_tableViewSort();
        table->show();
    }

    QString stored() const
    {
        const QString path = folder.filePath(QStringLiteral("Tessera.xml"));
        if (!writeStore(path, machines))
            qFatal("no catalogue");
        return path;
    }

    QTemporaryDir folder;
    test::ScriptedDesktop desktop;
    UserDefaults defaults;
    DefaultsController controls;
    Catalogue catalogue;
    GameListController list;
    std::unique_ptr<GameTableView> table;
};

} // namespace tessera::test
