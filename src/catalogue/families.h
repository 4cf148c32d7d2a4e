#pragma once

#include "catalogue/gamerecord.h"
#include "catalogue/recordset.h"

#include <cstdint>
#include <span>
#include <vector>

namespace tessera {

/// For each record the head of its family, as an index: the parent, or the parent's parent. A clone whose
/// parent is not in the content heads a family of its own; of clones that go round in a ring the first does.
std::vector<std::uint32_t> familyHeads(std::span<const GameRecord> content);

/// Rows with clones folded beneath their parents.
struct FamilyRows {
    std::vector<std::uint32_t> rows;
    /// For each row how many clones belong to it, shown or folded; 0 for a clone's own row.
    std::vector<std::uint32_t> clones;
};

/// Each family's parent stays at its place among the rows; where the parent is none of them, the first of its
/// clones stands for it. The others are left out, or follow at once where the family's head is in `open`.
FamilyRows foldFamilies(std::span<const std::uint32_t> rows, std::span<const std::uint32_t> heads,
                        const RecordSet& open);

} // namespace tessera
