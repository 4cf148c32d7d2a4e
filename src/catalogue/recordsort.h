#pragma once

#include "catalogue/gamerecord.h"

#include <cstdint>
#include <span>

namespace tessera {

/// Sorts indexes into the content, which stand in ascending order, by the records' values. Absent values
/// count as less than empty ones, texts compare by code point, and equal ones keep their order, also when
/// descending.
void sortRecords(std::span<std::uint32_t> rows, std::span<const GameRecord> content, Field field,
                 bool ascending);

} // namespace tessera
