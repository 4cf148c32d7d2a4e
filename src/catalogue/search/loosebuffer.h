#pragma once

#include "catalogue/search/looseform.h"
#include "catalogue/search/rank.h"
#include "catalogue/search/searchbuffer.h"

#include <span>

namespace tessera {

/// What of a word's places in loose forms counts.
struct LooseRules {
    bool wholeOnly = false; ///< where whole words stand
    bool atBeginning = false; ///< of a name or a title
    bool inside = false; ///< also within a word
    bool asInitials = false; ///< also as the initials of a title
    FieldSet fields = everyField; ///< only there
};

/// The loose forms of many records in one run of bytes.
class LooseBuffer
{
public:
    void reserve(std::size_t bytes, std::size_t records);
    /// A record's forms go in between begin() and end().
    void begin(std::uint32_t record);
    void add(FieldMark mark, const LooseForm& form);
    /// Letters that are no words.
    void add(FieldMark mark, std::string_view letters);
    /// Bytes of forms that were added before, which are added once more.
    struct Range {
        std::size_t begin = 0;
        std::size_t end = 0;
    };
    void repeat(Range forms);
    void end();

    void append(const LooseBuffer& other);
    // As in SearchBuffer.
    void blank(std::uint32_t record) { m_forms.blank(record); }
    void remove(std::uint32_t record) { m_forms.remove(record); }
    void makeRoom(std::uint32_t record) { m_forms.makeRoom(record); }

    /// In bytes.
    std::size_t size() const { return m_edges.size(); }
    std::string_view bytes() const { return m_forms.bytes(); }
    const SearchBuffer& forms() const { return m_forms; }
    Edge edgeAt(std::size_t offset) const { return m_edges[offset]; }

    /// Calls `hit(record, rank, field)` for each place of the word that counts.
    template <class Hit>
    void forEachRank(std::string_view word, const LooseRules& rules, Hit&& hit) const
    {
        m_forms.forEachHit(word, [&](std::uint32_t record, std::size_t offset) {
            // Most places are within words; which field they lie in need not be known.
            if ((m_edges[offset] == Edge::None && !rules.inside)
                || (rules.atBeginning && !isFieldMark(bytes()[offset - 1])))
                return;
            const FieldMark field = fieldAt(bytes(), offset);
            const bool isThere = (rules.fields & setOf(field)) != 0;
            const Rank rank = isThere ? rankAt(offset, word.size(), field, rules) : Rank::None;
            if (rank != Rank::None)
                hit(record, rank, field);
        });
    }

    /// Calls `hit(record)` for each wanted record that has a part of a title which the words make up in any
    /// order, each as often as it is given; those that are left stand in its maker or year.
    template <class Wanted, class Hit>
    void forEachCovered(std::span<const std::string> words, Wanted&& wanted, Hit&& hit) const
    {
        for (std::size_t place = 0; place < m_forms.records(); ++place) {
            const std::uint32_t record = m_forms.record(place);
            if (wanted(record) && isCovered(m_forms.begins(place), m_forms.ends(place), words))
                hit(record);
        }
    }

private:
    Rank rankAt(std::size_t offset, std::size_t size, FieldMark field, const LooseRules& rules) const;
    bool isCovered(std::size_t begin, std::size_t end, std::span<const std::string> words) const;
    bool crossesBlank(std::size_t begin, std::size_t end) const;
    bool isOfTitle(std::size_t place) const;
    bool isCoveredFrom(std::size_t place, std::size_t begin, std::size_t end,
                       std::span<const std::string> words) const;
    bool isOfMakerOrYear(std::string_view word, std::size_t begin, std::size_t end) const;

    SearchBuffer m_forms;
    std::vector<Edge> m_edges; // one a byte
};

} // namespace tessera
