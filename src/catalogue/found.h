#pragma once

#include "catalogue/recordset.h"

#include <cstdint>
#include <vector>

namespace tessera {

/// What a search found.
struct Found {
    RecordSet records;
    /// For each record of the content how well it fits, the least first; it counts for the found ones only.
    /// Empty where nothing ranks them.
    std::vector<std::uint32_t> ranks;
    /// Clones among them are shown, also where families are folded.
    bool opensFamilies = false;
    /// Nothing was found: these are the nearest.
    bool isNearest = false;
};

} // namespace tessera
