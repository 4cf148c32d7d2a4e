#pragma once

#include "catalogue/eightbytes.h"

#include <bit>
#include <cstdint>
#include <span>
#include <vector>

namespace tessera {

/// Some of a content's records, by their indexes: one bit each.
class RecordSet
{
public:
    RecordSet() = default;
    /// None of `size` records.
    explicit RecordSet(std::size_t size)
        : m_size(size)
        , m_words((size + 63) / 64)
    {
    }

    static RecordSet all(std::size_t size)
    {
        RecordSet set(size);
        for (std::uint64_t& word : set.m_words)
            word = ~std::uint64_t{0};
        if (size % 64 != 0)
            set.m_words.back() >>= 64 - size % 64;
        return set;
    }

    /// The records whose byte is 1; that of the others is 0.
    static RecordSet of(std::span<const std::uint8_t> kept)
    {
        RecordSet set(kept.size());
        std::size_t i = 0;
        for (; i + 8 <= kept.size(); i += 8)
            set.m_words[i / 64] |= bitOfEachByte(loadWord(&kept[i])) << (i % 64);
        for (; i < kept.size(); ++i)
            set.m_words[i / 64] |= std::uint64_t{kept[i]} << (i % 64);
        return set;
    }

    /// How many records there are to choose from.
    std::size_t size() const { return m_size; }

    std::size_t count() const
    {
        std::size_t sum = 0;
        for (const std::uint64_t word : m_words)
            sum += static_cast<std::size_t>(std::popcount(word));
        return sum;
    }

    bool contains(std::uint32_t record) const
    {
        return record < m_size && ((m_words[record / 64] >> (record % 64)) & 1) != 0;
    }

    void insert(std::uint32_t record) { m_words[record / 64] |= bit(record); }
    void remove(std::uint32_t record) { m_words[record / 64] &= ~bit(record); }

    /// Only those that the other set of the same content holds, too.
    void keep(const RecordSet& other)
    {
        for (std::size_t i = 0; i < m_words.size(); ++i)
            m_words[i] &= other.m_words[i];
    }

    /// In ascending order.
    std::vector<std::uint32_t> records() const
    {
        std::vector<std::uint32_t> all;
        all.reserve(count());
        for (std::size_t i = 0; i < m_words.size(); ++i) {
            for (std::uint64_t word = m_words[i]; word != 0; word &= word - 1)
                all.push_back(static_cast<std::uint32_t>(i * 64)
                              + static_cast<std::uint32_t>(std::countr_zero(word)));
        }
        return all;
    }

    bool operator==(const RecordSet&) const = default;

private:
    static std::uint64_t bit(std::uint32_t record) { return std::uint64_t{1} << (record % 64); }

    std::size_t m_size = 0;
    std::vector<std::uint64_t> m_words;
};

} // namespace tessera
