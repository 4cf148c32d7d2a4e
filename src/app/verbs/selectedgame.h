#pragma once

#include "core/failure.h"
#include "launch/launchoptions.h"

#include <expected>

namespace tessera {

/// What the game list would say of `game`: its titles from the catalogue at `path`. A game that the catalogue
/// does not know has a name only.
std::expected<SelectedGame, Failure> selectedGame(const QString& path, const QString& game);

} // namespace tessera
