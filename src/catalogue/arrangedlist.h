#pragma once

#include "catalogue/gamerecord.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <span>
#include <vector>

namespace tessera {

using Predicate = std::function<bool(const GameRecord&)>;

/// What a table shows of a content: the records that its predicate lets through, in its sort order.
class ArrangedList : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The content outlives the list, or is replaced by another call. Absent values sort first, ties keep the
    /// content's order, comparison is by code point, case-sensitive.
    void setContent(std::span<const GameRecord> content);
    /// No predicate lets every record through.
    void setPredicate(Predicate predicate);
    /// The order that the list has already changes nothing.
    void setSort(Field field, bool ascending);

    /// Indexes into the content, one a row.
    std::span<const std::uint32_t> rows() const { return m_rows; }
    std::size_t size() const { return m_rows.size(); }
    const GameRecord& operator[](std::size_t row) const { return m_content[m_rows[row]]; }

    Field sortField() const { return m_field; }
    bool ascending() const { return m_ascending; }

    /// The row that shows a record of the content, or nothing when the predicate hides it.
    std::optional<std::size_t> rowOf(std::uint32_t record) const;
    /// The first row whose field is exactly `value`.
    std::optional<std::size_t> find(Field field, std::string_view value) const;

Q_SIGNALS:
    void aboutToArrange();
    void arranged();

private:
    void arrange();

    std::span<const GameRecord> m_content;
    Predicate m_predicate;
    Field m_field = Field::Name;
    bool m_ascending = true;
    std::vector<std::uint32_t> m_rows;
    std::vector<std::uint32_t> m_rowOf; // the other way round: a row for each record of the content
};

} // namespace tessera
