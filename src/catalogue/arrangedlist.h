#pragma once

#include "catalogue/found.h"
#include "catalogue/gamerecord.h"
#include "catalogue/recordsort.h"

#include <QObject>

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <vector>

namespace tessera {

using Predicate = std::function<bool(const GameRecord&)>;

/// The records of a content that the predicate lets through.
RecordSet recordsWhere(std::span<const GameRecord> content, const Predicate& predicate);

/// What a table shows of a content: the records that its predicate lets through and a search has found, in
/// its sort order or the best ranked first, with clones folded beneath their parents.
class ArrangedList : public QObject
{
    Q_OBJECT

public:
    struct Sort {
        Field field;
        bool ascending;
    };

    /// Which records belong together, by the index of each one's head, and the heads whose clones are shown.
    struct Families {
        std::vector<std::uint32_t> heads;
        RecordSet open;
    };

    using QObject::QObject;

    /// The content outlives the list, or is replaced by another call. What was found and the families, which
    /// name records by their indexes, are gone then; it is sorted by the fields that were chosen before, the
    /// last one first. Absent values sort first, comparison is by code point, case-sensitive.
    /// `byName`, where it is known already, is this content's.
    void setContent(std::span<const GameRecord> content, std::optional<SortedRecords> byName = std::nullopt);
    /// No predicate lets every record through.
    void setPredicate(Predicate predicate);
    /// Whether ranks count again after a sort.
    enum class Ranking : std::uint8_t { Anew, AsBefore };
    /// Besides the predicate: only what was found, the best ranked first. Nothing lets every record through.
    void setFound(std::optional<Found> found, Ranking ranking = Ranking::Anew);
    /// Equal ones stay as they are shown, ranks included. The order that the list has already changes
    /// nothing. A sort wins over ranks until something is found anew.
    void setSort(Field field, bool ascending);
    /// By what stands in no field of the records. The next content is sorted by fields again.
    void setSort(SortedRecords order, bool ascending);
    /// Without families every record has a row of its own. So it has while ranks count.
    void setFamilies(std::optional<Families> families);

    /// A record's value in this field is another one now. Rows stay as they are until something asks for
    /// others.
    void forgetOrder(Field field);

    /// Indexes into the content, one a row.
    std::span<const std::uint32_t> rows() const { return m_rows; }
    std::size_t size() const { return m_rows.size(); }
    const GameRecord& operator[](std::size_t row) const { return m_content[m_rows[row]]; }

    Field sortField() const { return m_sorts.back().field; }
    bool ascending() const { return m_ascending; }
    /// What decides among those that are equal by it; nothing where that is no field, or ranks are shown.
    std::optional<Sort> secondSort() const;
    /// The best ranked come first.
    bool isRanked() const { return m_ranks && m_found && !m_found->ranks.empty(); }
    /// Nothing was found: the rows are the nearest.
    bool isNearest() const { return m_found && m_found->isNearest; }
    /// How many clones belong to a row, shown or folded.
    std::uint32_t clones(std::size_t row) const { return m_clones.empty() ? 0 : m_clones[row]; }

    /// A clone that stands beneath its parent.
    bool isBeneath(std::size_t row) const;
    bool isOpen(std::size_t row) const
    {
        return m_families && m_families->open.contains(m_families->heads[m_rows[row]]);
    }

    /// The row that shows a record of the content, or nothing when it is hidden or folded.
    std::optional<std::size_t> rowOf(std::uint32_t record) const;
    /// The first row whose field is exactly `value`.
    std::optional<std::size_t> find(Field field, std::string_view value) const;
    /// The first record whose field is exactly `value`, as they are sorted, shown or not.
    std::optional<std::uint32_t> firstOf(Field field, std::string_view value) const;

    /// What was asked for: another content, other ones of its records, or another order of the same ones.
    enum class Change : std::uint8_t { Content, Rows, Order };

Q_SIGNALS:
    // Rows are others now; where they would be the same nothing is told, but of another content.
    void aboutToArrange(tessera::ArrangedList::Change change);
    void arranged(tessera::ArrangedList::Change change);

private:
    void arrange(Change change);
    void keepShownOrder();
    void sortBy(bool ascending);
    RecordSet chosen() const;
    const SortedRecords& sorted(Field field);
    const std::vector<std::uint32_t>& ordered();

    std::span<const GameRecord> m_content;
    Predicate m_predicate;
    std::optional<Found> m_found;
    bool m_ranks = true; ///< ranks count: nothing was sorted since
    std::optional<Families> m_families;
    std::vector<Sort> m_sorts{{Field::Name, true}}; // each field once, the last one counts first
    bool m_ascending = true;
    bool m_isOverRanks = false; ///< equal ones stand as they were ranked before the last sort
    std::array<std::optional<SortedRecords>, fieldCount> m_sorted;
    std::optional<SortedRecords> m_order; // goes before the fields
    // Of all records, shown or not: how they stood before the last sort (nothing: as the content has them),
    // and sorted, though perhaps by values of before.
    std::vector<std::uint32_t> m_before;
    std::vector<std::uint32_t> m_ordered;
    bool m_isOrdered = false;
    std::vector<std::uint32_t> m_rows;
    std::vector<std::uint32_t> m_clones; // one a row, or none at all
    std::vector<std::uint32_t> m_rowOf; // the other way round: a row for each record of the content
};

} // namespace tessera
