#pragma once

#include "catalogue/gamerecord.h"
#include "catalogue/recordset.h"

#include <cstdint>
#include <span>
#include <vector>

namespace tessera {

/// A content's records sorted by a field once, to be asked for in both directions and over any order that was
/// there before. Absent values count as less than empty ones, and texts compare by code point.
class SortedRecords
{
public:
    SortedRecords(std::span<const GameRecord> content, Field field);
    /// By a number for each record, of something that stands in none of its fields.
    explicit SortedRecords(std::span<const std::uint64_t> keys);

    /// All of them. Equal ones keep their places among each other, also when descending: those of `before`,
    /// an order of the same records, or the content's own where it is empty.
    std::vector<std::uint32_t> ordered(bool ascending, std::span<const std::uint32_t> before) const;

private:
    std::vector<std::uint32_t> descending() const;

    std::vector<std::uint32_t> m_records;
    std::vector<std::uint8_t> m_begins; // 1 where a value differs from the one before it
};

} // namespace tessera
