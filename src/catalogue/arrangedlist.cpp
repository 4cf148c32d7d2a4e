#include "catalogue/arrangedlist.h"

#include "catalogue/recordsort.h"

namespace tessera {

namespace {

constexpr std::uint32_t hidden = 0xFFFF'FFFF;

} // namespace

void ArrangedList::setContent(std::span<const GameRecord> content)
{
    Q_EMIT aboutToArrange();
    m_content = content;
    arrange();
}

void ArrangedList::setPredicate(Predicate predicate)
{
    Q_EMIT aboutToArrange();
    m_predicate = std::move(predicate);
    arrange();
}

void ArrangedList::setSort(Field field, bool ascending)
{
    if (field == m_field && ascending == m_ascending)
        return;
    Q_EMIT aboutToArrange();
    m_field = field;
    m_ascending = ascending;
    arrange();
}

void ArrangedList::arrange()
{
    m_rows.clear();
    m_rows.reserve(m_content.size());
    for (std::uint32_t record = 0; record < m_content.size(); ++record) {
        if (!m_predicate || m_predicate(m_content[record]))
            m_rows.push_back(record);
    }
    sortRecords(m_rows, m_content, m_field, m_ascending);

    m_rowOf.assign(m_content.size(), hidden);
    for (std::uint32_t row = 0; row < m_rows.size(); ++row)
        m_rowOf[m_rows[row]] = row;
    Q_EMIT arranged();
}

std::optional<std::size_t> ArrangedList::rowOf(std::uint32_t record) const
{
    if (record >= m_rowOf.size() || m_rowOf[record] == hidden)
        return std::nullopt;
    return m_rowOf[record];
}

std::optional<std::size_t> ArrangedList::find(Field field, std::string_view value) const
{
    for (std::size_t row = 0; row < size(); ++row) {
        const GameRecord& record = (*this)[row];
        if (record[field] == value && record.has(field))
            return row;
    }
    return std::nullopt;
}

} // namespace tessera
