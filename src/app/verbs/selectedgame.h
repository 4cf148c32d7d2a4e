#pragma once

#include "core/failure.h"
#include "launch/launchoptions.h"

#include <expected>

namespace tessera {

/// A game as it is launched: what has a slash in it is the path of an archive, which gets absolute.
QString gameReference(const QString& given);

/// What the game list would say of `game`, a short name or the path of an archive: its name, and its titles
/// from the catalogue at `path`. A game that the catalogue does not know has a name only.
std::expected<SelectedGame, Failure> selectedGame(const QString& path, const QString& game);

} // namespace tessera
