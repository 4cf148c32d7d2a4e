#include "catalogue/arrangedlist.h"

#include "catalogue/families.h"

#include <algorithm>

namespace tessera {

namespace {

constexpr std::uint32_t hidden = 0xFFFF'FFFF;

// Equal ranks keep their order.
std::vector<std::uint32_t> byRank(std::span<const std::uint32_t> rows, std::span<const std::uint32_t> ranks)
{
    constexpr unsigned digitBits = 14;
    constexpr std::size_t digits = std::size_t{1} << digitBits;
    std::vector<std::uint32_t> from(rows.begin(), rows.end());
    std::vector<std::uint32_t> ordered(rows.size());
    for (const unsigned shift : {0U, digitBits}) {
        std::array<std::uint32_t, digits + 1> next{};
        const auto digit = [&](std::uint32_t record) { return ranks[record] >> shift & (digits - 1); };
        for (const std::uint32_t record : from)
            ++next[digit(record) + 1];
        for (std::size_t rank = 1; rank < next.size(); ++rank)
            next[rank] += next[rank - 1];
        for (const std::uint32_t record : from)
            ordered[next[digit(record)]++] = record;
        from.swap(ordered);
    }
    return from;
}

std::vector<std::uint32_t> chosenOf(std::span<const std::uint32_t> records, const RecordSet& chosen)
{
    // Written always and kept when chosen: a branch for each record would be guessed wrong too often.
    std::vector<std::uint32_t> rows(records.size());
    std::size_t size = 0;
    for (const std::uint32_t record : records) {
        rows[size] = record;
        size += chosen.contains(record) ? 1 : 0;
    }
    rows.resize(size);
    return rows;
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
    Q_EMIT aboutToArrange(Change::Content);
    m_content = content;
    m_found.reset();
    m_families.reset();
    m_sorted = {};
    m_sorted[static_cast<std::size_t>(Field::Name)] = std::move(byName);
    m_order.reset();
    m_isOverRanks = false;
    m_ascending = m_sorts.back().ascending;
    // As when each of the sorts were asked for again.
    m_before.clear();
    for (const Sort& sort : std::span(m_sorts).first(m_sorts.size() - 1))
        m_before = sorted(sort.field).ordered(sort.ascending, m_before);
    m_isOrdered = false;
    arrange(Change::Content);
}

void ArrangedList::setPredicate(Predicate predicate)
{
    m_predicate = std::move(predicate);
    arrange(Change::Rows);
}

void ArrangedList::setFound(std::optional<Found> found, Ranking ranking)
{
    m_ranks = m_ranks || ranking == Ranking::Anew;
    if (!found && !m_found)
        return;
    m_found = std::move(found);
    arrange(Change::Rows);
}

void ArrangedList::setSort(Field field, bool ascending)
{
    if (field == sortField() && ascending == m_ascending && !isRanked() && !m_order)
        return;
    keepShownOrder();
    m_isOverRanks = isRanked() || (m_isOverRanks && field == sortField());
    std::erase_if(m_sorts, [field](const Sort& sort) { return sort.field == field; });
    m_sorts.push_back({field, ascending});
    m_order.reset();
    sortBy(ascending);
}

void ArrangedList::setSort(SortedRecords order, bool ascending)
{
    keepShownOrder();
    m_order = std::move(order);
    sortBy(ascending);
}

std::optional<ArrangedList::Sort> ArrangedList::secondSort() const
{
    if (m_order || isRanked() || m_isOverRanks || m_sorts.size() < 2)
        return std::nullopt;
    return m_sorts[m_sorts.size() - 2];
}

void ArrangedList::forgetOrder(Field field)
{
    m_sorted[static_cast<std::size_t>(field)].reset();
    if (field == sortField())
        m_isOrdered = false;
}

// Records that are hidden stay where they were among the others; ranked ones change places with each other
// only.
void ArrangedList::keepShownOrder()
{
    m_before = m_ordered;
    if (!isRanked())
        return;
    std::size_t row = 0;
    for (std::uint32_t& record : m_before) {
        if (rowOf(record))
            record = m_rows[row++];
    }
}

void ArrangedList::sortBy(bool ascending)
{
    m_ascending = ascending;
    m_isOrdered = false;
    m_ranks = false;
    arrange(Change::Order);
}

void ArrangedList::setFamilies(std::optional<Families> families)
{
    if (!families && !m_families)
        return;
    m_families = std::move(families);
    arrange(Change::Rows);
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

const SortedRecords& ArrangedList::sorted(Field field)
{
    auto& sorted = m_sorted[static_cast<std::size_t>(field)];
    if (!sorted)
        sorted.emplace(m_content, field);
    return *sorted;
}

const std::vector<std::uint32_t>& ArrangedList::ordered()
{
    if (!m_isOrdered)
        m_ordered = (m_order ? *m_order : sorted(sortField())).ordered(m_ascending, m_before);
    m_isOrdered = true;
    return m_ordered;
}

void ArrangedList::arrange(Change change)
{
    std::vector<std::uint32_t> rows = chosenOf(ordered(), chosen());
    std::vector<std::uint32_t> clones;
    if (isRanked()) {
        rows = byRank(rows, m_found->ranks);
    } else if (m_families && !(m_found && m_found->opensFamilies)) {
        FamilyRows folded = foldFamilies(rows, m_families->heads, m_families->open);
        rows = std::move(folded.rows);
        clones = std::move(folded.clones);
    }
    if (change != Change::Content) {
        if (rows == m_rows && clones == m_clones)
            return;
        Q_EMIT aboutToArrange(change);
    }
    m_rows = std::move(rows);
    m_clones = std::move(clones);
    m_rowOf.assign(m_content.size(), hidden);
    for (std::uint32_t row = 0; row < m_rows.size(); ++row)
        m_rowOf[m_rows[row]] = row;
    Q_EMIT arranged(change);
}

bool ArrangedList::isBeneath(std::size_t row) const
{
    if (!m_families || m_clones.empty())
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

std::optional<std::uint32_t> ArrangedList::firstOf(Field field, std::string_view value) const
{
    const auto first = std::ranges::find_if(m_ordered, [&](std::uint32_t record) {
        return m_content[record].has(field) && m_content[record][field] == value;
    });
    return first == m_ordered.end() ? std::nullopt : std::optional(*first);
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
