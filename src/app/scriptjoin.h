#pragma once

#include <memory>

namespace tessera {

class DefaultsController;
class GameListController;
class LaunchController;
class ScriptTool;
class UtilityObject;

/// Joins the utility window's script maker to the game list and to the launch options.
std::unique_ptr<ScriptTool> joinScripts(UtilityObject& utility, GameListController& list,
                                        LaunchController& launches, DefaultsController& defaults);

} // namespace tessera
