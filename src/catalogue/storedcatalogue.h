#pragma once

#include "catalogue/gamerecord.h"
#include "catalogue/textarena.h"

#include <vector>

namespace tessera {

/// What a store file holds: the records in the file's order, and the arena that owns their texts.
struct StoredCatalogue {
    TextArena arena;
    std::vector<GameRecord> records;
};

} // namespace tessera
