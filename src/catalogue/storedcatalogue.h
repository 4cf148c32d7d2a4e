#pragma once

#include "catalogue/gamerecord.h"
#include "catalogue/textarena.h"

#include <vector>

namespace tessera {

/// What a store file holds: the records in the file's order, and the arena that owns their texts.
struct StoredCatalogue {
    TextArena arena;
    std::vector<GameRecord> records;
    bool isOurLayout = false; ///< nothing is lost where what we write replaces it
};

} // namespace tessera
