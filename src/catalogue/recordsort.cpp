#include "catalogue/recordsort.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <numeric>
#include <tuple>
#include <vector>

namespace tessera {

namespace {

constexpr std::size_t keySize = sizeof(std::uint64_t);

/// Eight bytes of a value as a number, and what is left of the value from there on: 0 where it is absent,
/// else one more than its bytes, of which more than eight count as nine. So a value goes before each longer
/// one that it begins.
struct Entry {
    std::uint64_t key;
    std::uint32_t rest;
    std::uint32_t row;

    bool operator<(const Entry& other) const
    {
        return std::tie(key, rest, row) < std::tie(other.key, other.rest, other.row);
    }
};

constexpr std::uint32_t restGoesOn = keySize + 2;

/// Entries that are equal in all bytes before `offset`.
struct Run {
    std::size_t begin;
    std::size_t end;
    std::size_t offset;
};

std::uint64_t keyAt(std::string_view value)
{
    std::uint64_t key = 0;
    std::memcpy(&key, value.data(), std::min(value.size(), keySize));
    if constexpr (std::endian::native == std::endian::little)
        key = __builtin_bswap64(key);
    return key;
}

/// Sorts by the first eight bytes, then each run of equal ones by the next eight, and so on.
class RecordSort
{
public:
    RecordSort(std::span<const GameRecord> content, Field field)
        : m_content(content)
        , m_field(field)
        , m_begins(content.size())
    {
        m_entries.reserve(content.size());
        for (std::uint32_t row = 0; row < content.size(); ++row)
            m_entries.push_back({0, 0, row});
    }

    void sort()
    {
        std::vector<Run> runs{{0, m_entries.size(), 0}};
        while (!runs.empty()) {
            const Run run = runs.back();
            runs.pop_back();
            sortRun(run, runs);
        }
    }

    const std::vector<Entry>& entries() const { return m_entries; }
    std::vector<std::uint8_t> takeBegins() { return std::move(m_begins); }

private:
    std::string_view value(const Entry& entry) const { return m_content[entry.row][m_field]; }

    void fill(Entry& entry, std::size_t offset) const;
    bool isOneValue(const Run& run) const;
    void sortRun(const Run& run, std::vector<Run>& runs);

    std::span<const GameRecord> m_content;
    Field m_field;
    std::vector<Entry> m_entries;
    std::vector<std::uint8_t> m_begins; // 1 where a value differs from the one before it
};

void RecordSort::fill(Entry& entry, std::size_t offset) const
{
    const std::string_view whole = value(entry);
    if (whole.data() == nullptr) {
        entry.key = 0;
        entry.rest = 0;
    } else {
        const std::string_view text = whole.substr(offset);
        entry.key = keyAt(text);
        entry.rest = static_cast<std::uint32_t>(std::min(text.size(), keySize + 1) + 1);
    }
}

// Equal values often share their text; then there is no need to read it to its end.
bool RecordSort::isOneValue(const Run& run) const
{
    const std::string_view first = value(m_entries[run.begin]);
    for (std::size_t i = run.begin + 1; i < run.end; ++i) {
        const std::string_view other = value(m_entries[i]);
        if (other.data() != first.data() || other.size() != first.size())
            return false;
    }
    return true;
}

void RecordSort::sortRun(const Run& run, std::vector<Run>& runs)
{
    for (std::size_t i = run.begin; i < run.end; ++i)
        fill(m_entries[i], run.offset);
    const auto at = [&](std::size_t i) { return m_entries.begin() + static_cast<std::ptrdiff_t>(i); };
    if (!std::is_sorted(at(run.begin), at(run.end)))
        std::sort(at(run.begin), at(run.end));

    for (std::size_t begin = run.begin; begin < run.end;) {
        std::size_t end = begin + 1;
        while (end < run.end && m_entries[end].key == m_entries[begin].key
               && m_entries[end].rest == m_entries[begin].rest)
            ++end;
        m_begins[begin] = 1;
        const Run equal{begin, end, run.offset + keySize};
        if (end - begin > 1 && m_entries[begin].rest == restGoesOn && !isOneValue(equal))
            runs.push_back(equal);
        begin = end;
    }
}

} // namespace

SortedRecords::SortedRecords(std::span<const GameRecord> content, Field field)
    : m_records(content.size())
{
    RecordSort order(content, field);
    order.sort();
    std::ranges::transform(order.entries(), m_records.begin(), &Entry::row);
    m_begins = order.takeBegins();
}

SortedRecords::SortedRecords(std::span<const std::uint64_t> keys)
    : m_records(keys.size())
    , m_begins(keys.size())
{
    std::iota(m_records.begin(), m_records.end(), 0U);
    std::ranges::sort(m_records, {},
                      [keys](std::uint32_t record) { return std::pair(keys[record], record); });
    for (std::size_t i = 0; i < keys.size(); ++i)
        m_begins[i] = i == 0 || keys[m_records[i]] != keys[m_records[i - 1]] ? 1 : 0;
}

// Equal ones as the content has them.
std::vector<std::uint32_t> SortedRecords::descending() const
{
    std::vector<std::uint32_t> records;
    records.reserve(m_records.size());
    for (std::size_t end = m_records.size(); end > 0;) {
        std::size_t begin = end - 1;
        while (m_begins[begin] == 0)
            --begin;
        const auto at = [this](std::size_t i) { return m_records.begin() + static_cast<std::ptrdiff_t>(i); };
        records.insert(records.end(), at(begin), at(end));
        end = begin;
    }
    return records;
}

// Nothing is compared again: where the run of each value begins is known, and the records go there one after
// another.
std::vector<std::uint32_t> SortedRecords::ordered(bool ascending, std::span<const std::uint32_t> before) const
{
    if (before.empty())
        return ascending ? m_records : descending();
    const std::size_t size = m_records.size();
    std::vector<std::uint32_t> runOf(size); // the place in m_records where a record's run begins
    std::vector<std::uint32_t> next(size); // by that place: where the run's next record goes
    for (std::size_t begin = 0; begin < size;) {
        std::size_t end = begin;
        do
            runOf[m_records[end++]] = static_cast<std::uint32_t>(begin);
        while (end < size && m_begins[end] == 0);
        next[begin] = static_cast<std::uint32_t>(ascending ? begin : size - end);
        begin = end;
    }
    std::vector<std::uint32_t> records(size);
    for (const std::uint32_t record : before)
        records[next[runOf[record]]++] = record;
    return records;
}

} // namespace tessera
