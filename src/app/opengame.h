#pragma once

class QString;

namespace tessera {

class Tessera_AppDelegate;

/// Selects a machine in the main window, also one that was hidden; false where there is none of that name.
bool openGame(Tessera_AppDelegate& app, const QString& name);

} // namespace tessera
