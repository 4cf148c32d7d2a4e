#include "app/scriptjoin.h"

#include "catalogue/ui/gamelistcontroller.h"
#include "launch/ui/launchcontroller.h"
#include "platform/defaultscontroller.h"
#include "tools/ui/scripttool.h"
#include "tools/ui/utilityobject.h"
#include "tools/ui/utilitywindow.h"

namespace tessera {

std::unique_ptr<ScriptTool> joinScripts(UtilityObject& utility, GameListController& list,
                                        LaunchController& launches, DefaultsController& defaults)
{
    ScriptSources sources;
    sources.tableViewSelectionROM = [&list] { return list.tableViewSelectionROM(); };
    sources.tableViewSelectionTitleE = [&list] { return list.tableViewSelectionTitleE(); };
    sources.tableViewSelectionTitleJ = [&list] { return list.tableViewSelectionTitleJ(); };
    sources.emulatorPath = [&launches, &defaults](ScriptEmulator emulator) {
        if (emulator == ScriptEmulator::CommandLine)
            return launches.executable();
        return defaults.text(emulator == ScriptEmulator::MameOsx ? keys::MameosxPath : keys::ApplicationPath);
    };
    sources.argumentsArray = [&launches] { return launches.shellOptions(); };
    sources.argumentsArray2 = [&launches] { return launches.osxOptions(); };
    return std::make_unique<ScriptTool>(*utility.utilityWindow().scriptPage, utility.workbench(),
                                        std::move(sources));
}

} // namespace tessera
