#include "catalogue/lookup.h"

#include <unordered_map>

namespace tessera {

namespace {

// Fewer values are found sooner by looking through the list.
constexpr qsizetype indexPays = 8;

/// The first row of each value.
class RowIndex
{
public:
    RowIndex(const ArrangedList& list, Field key)
    {
        m_rows.reserve(list.size());
        for (std::size_t row = 0; row < list.size(); ++row) {
            if (list[row].has(key))
                m_rows.try_emplace(list[row][key], row);
        }
    }

    std::optional<std::size_t> find(std::string_view value) const
    {
        const auto found = m_rows.find(value);
        return found != m_rows.end() ? std::optional(found->second) : std::nullopt;
    }

private:
    std::unordered_map<std::string_view, std::size_t> m_rows;
};

} // namespace

LookupResult lookUp(const ArrangedList& list, Field key, const QStringList& values)
{
    std::optional<RowIndex> index;
    if (values.size() >= indexPays)
        index.emplace(list, key);

    LookupResult answer;
    for (const QString& value : values) {
        const std::string bytes = value.toStdString();
        if (const auto row = index ? index->find(bytes) : list.find(key, bytes))
            answer.found.push_back(recordDictionary(list[*row]));
        else
            answer.notFound << value;
    }
    return answer;
}

} // namespace tessera
