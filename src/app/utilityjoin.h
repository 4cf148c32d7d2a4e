#pragma once

#include <memory>

namespace tessera {

class DefaultsController;
class Desktop;
class Tessera_AppDelegate;
class UtilityObject;

/// The utility window, joined to the rooms that its tools ask.
std::unique_ptr<UtilityObject> makeUtility(Tessera_AppDelegate& app, Desktop& desktop,
                                           DefaultsController& defaults);

} // namespace tessera
