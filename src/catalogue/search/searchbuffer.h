#pragma once

#include "catalogue/search/bytescan.h"
#include "catalogue/search/fieldmarks.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// The folded texts of many records in one run of bytes, so that one pass looks through all of them.
class SearchBuffer
{
public:
    void reserve(std::size_t bytes, std::size_t records);

    /// A record's texts go in between begin() and end().
    void begin(std::uint32_t record);
    void add(FieldMark mark, std::string_view folded);
    /// Folds the text on the way, as far as it is ASCII.
    void addFoldingAscii(FieldMark mark, std::string_view text);
    /// Marks and texts that stand in bytes() already.
    void repeat(std::size_t begin, std::size_t end) { m_bytes.append(m_bytes, begin, end - begin); }
    /// A record to which nothing was added has no place.
    void end();
    void removeLast();
    /// In all texts at once, which is much quicker than in each.
    void lowerAsciiLetters();

    std::size_t records() const { return m_records.size(); }
    std::uint32_t record(std::size_t place) const { return m_records[place]; }
    std::string_view texts(std::size_t place) const;
    /// Where they begin in bytes(), and where they end.
    std::size_t begins(std::size_t place) const { return place == 0 ? 0 : m_ends[place - 1]; }
    std::size_t ends(std::size_t place) const { return m_ends[place]; }
    /// All texts with their marks. Before each text and behind it stands a mark.
    std::string_view bytes() const { return m_bytes; }

    /// What stands from place `begin` to before `end`, as a buffer of its own.
    SearchBuffer part(std::size_t begin, std::size_t end) const;
    /// Takes it out.
    void cut(std::size_t begin, std::size_t end);
    void append(const SearchBuffer& other);
    /// The record is not found here any more. Its room stays taken.
    void blank(std::uint32_t record);
    /// The same, and all records behind it move up by one.
    void remove(std::uint32_t record);
    /// This record and all behind it move back by one.
    void makeRoom(std::uint32_t record);

    /// Calls `hit(record, offset)` for each place of the word in bytes().
    template <class Hit>
    void forEachHit(std::string_view word, Hit&& hit) const;

private:
    std::size_t placeOf(std::size_t offset, std::size_t place) const;
    void sample(std::size_t place);

    std::string m_bytes;
    std::vector<std::uint32_t> m_ends; // where each record's texts end
    std::vector<std::uint32_t> m_records;
    ByteCounts m_counts{};
};

template <class Hit>
void SearchBuffer::forEachHit(std::string_view word, Hit&& hit) const
{
    const std::uint32_t* const ends = m_ends.data();
    const std::uint32_t* const records = m_records.data();
    std::size_t place = 0;
    forEachPlace(m_bytes, word, m_counts, [&, ends, records](std::size_t offset) {
        // Most often it is the same record, or the next one.
        if (ends[place] <= offset) {
            ++place;
            if (ends[place] <= offset)
                place = placeOf(offset, place);
        }
        hit(records[place], offset);
    });
}

} // namespace tessera
