#include "catalogue/arrangedlist.h"

#include "catalogue/families.h"

namespace tessera {

namespace {

constexpr std::uint32_t hidden = 0xFFFF'FFFF;

// Equal ranks keep their order.
std::vector<std::uint32_t> byRank(std::span<const std::uint32_t> rows, std::span<const std::uint8_t> ranks)
{
    std::array<std::uint32_t, 257> next{};
    for (const std::uint32_t record : rows)
        ++next[ranks[record] + 1U];
    for (std::size_t rank = 1; rank < next.size(); ++rank)
        next[rank] += next[rank - 1];
    std::vector<std::uint32_t> ordered(rows.size());
    for (const std::uint32_t record : rows)
        ordered[next[ranks[record]]++] = record;
    return ordered;
}

} // namespace

RecordSet recordsWhere(std::span<const GameRecord> content, const Predicate& predicate)
{
    RecordSet records(content.size());
    for (std::uint32_t record = 0; record < content.size(); ++record) {
        if (predicate(content[record]))
            records.insert(record);
    }
    return records;
}

void ArrangedList::setContent(std::span<const GameRecord> content, std::optional<SortedRecords> byName)
{
    Q_EMIT aboutToArrange();
    m_content = content;
    m_found.reset();
    m_families.reset();
    m_sorted = {};
    m_sorted[static_cast<std::size_t>(Field::Name)] = std::move(byName);
    m_order.reset();
    arrange(Content::Other);
}

void ArrangedList::setPredicate(Predicate predicate)
{
    m_predicate = std::move(predicate);
    arrange();
}

void ArrangedList::setFound(std::optional<Found> found)
{
    if (!found && !m_found)
        return;
    m_found = std::move(found);
    arrange();
}

void ArrangedList::setSort(Field field, bool ascending)
{
    if (field == m_field && ascending == m_ascending && !isRanked() && !m_order)
        return;
    m_field = field;
    m_order.reset();
    sortBy(ascending);
}

void ArrangedList::setSort(SortedRecords order, bool ascending)
{
    m_order = std::move(order);
    sortBy(ascending);
}

void ArrangedList::sortBy(bool ascending)
{
    m_ascending = ascending;
    if (m_found)
        m_found->ranks.clear();
    arrange();
    Q_EMIT sortWanted();
}

void ArrangedList::setFamilies(std::optional<Families> families)
{
    if (!families && !m_families)
        return;
    m_families = std::move(families);
    arrange();
}

// The predicate is asked about what was found only.
RecordSet ArrangedList::chosen() const
{
    if (!m_found)
        return m_predicate ? recordsWhere(m_content, m_predicate) : RecordSet::all(m_content.size());
    RecordSet records = m_found->records;
    if (m_predicate) {
        for (const std::uint32_t record : m_found->records.records()) {
            if (!m_predicate(m_content[record]))
                records.remove(record);
        }
    }
    return records;
}

const SortedRecords& ArrangedList::sorted()
{
    if (m_order)
        return *m_order;
    auto& sorted = m_sorted[static_cast<std::size_t>(m_field)];
    if (!sorted)
        sorted.emplace(m_content, m_field);
    return *sorted;
}

void ArrangedList::arrange(Content content)
{
    std::vector<std::uint32_t> rows
        = m_ascending ? sorted().ascending(chosen()) : sorted().descending(chosen());
    std::vector<std::uint32_t> clones;
    if (isRanked()) {
        rows = byRank(rows, m_found->ranks);
    } else if (m_families && !(m_found && m_found->opensFamilies)) {
        FamilyRows folded = foldFamilies(rows, m_families->heads, m_families->open);
        rows = std::move(folded.rows);
        clones = std::move(folded.clones);
    }
    if (content == Content::Same) {
        if (rows == m_rows && clones == m_clones)
            return;
        Q_EMIT aboutToArrange();
    }
    m_rows = std::move(rows);
    m_clones = std::move(clones);
    m_rowOf.assign(m_content.size(), hidden);
    for (std::uint32_t row = 0; row < m_rows.size(); ++row)
        m_rowOf[m_rows[row]] = row;
    Q_EMIT arranged();
}

bool ArrangedList::isBeneath(std::size_t row) const
{
    if (m_clones.empty())
        return false;
    const std::uint32_t head = m_families->heads[m_rows[row]];
    return head != m_rows[row] && rowOf(head);
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
