#pragma once

#include "catalogue/gamerecord.h"
#include "catalogue/recordset.h"

#include <cstdint>
#include <span>
#include <vector>

namespace tessera {

/// A content's records sorted by a field once, to be asked for any of them in both directions. Absent values
/// count as less than empty ones, texts compare by code point, and equal ones keep the content's order, also
/// when descending.
class SortedRecords
{
public:
    SortedRecords(std::span<const GameRecord> content, Field field);
    /// By a number for each record, of something that stands in none of its fields; equal numbers throughout
    /// leave the content's order.
    explicit SortedRecords(std::span<const std::uint64_t> keys);

    std::vector<std::uint32_t> ascending(const RecordSet& chosen) const;
    std::vector<std::uint32_t> descending(const RecordSet& chosen) const;

private:
    std::vector<std::uint32_t> m_records;
    std::vector<std::uint8_t> m_begins; // 1 where a value differs from the one before it
};

} // namespace tessera
