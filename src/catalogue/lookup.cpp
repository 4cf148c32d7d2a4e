#include "catalogue/lookup.h"

#include <unordered_map>

namespace tessera {

namespace {

// Fewer values are found sooner by looking through the list.
constexpr qsizetype indexPays = 8;

} // namespace

LookupResult lookUp(const ArrangedList& list, Field key, const QStringList& values)
{
    const bool isIndexed = values.size() >= indexPays;
    std::unordered_map<std::string_view, std::size_t> firstRows; // of each value
    if (isIndexed)
        firstRows.reserve(list.size());
    for (std::size_t row = 0; isIndexed && row < list.size(); ++row) {
        if (list[row].has(key))
            firstRows.try_emplace(list[row][key], row);
    }
    const auto rowOf = [&](std::string_view value) {
        if (!isIndexed)
            return list.find(key, value);
        const auto found = firstRows.find(value);
        return found == firstRows.end() ? std::nullopt : std::optional(found->second);
    };

    LookupResult answer;
    for (const QString& value : values) {
        if (const auto row = rowOf(value.toStdString()))
            answer.found.push_back(recordDictionary(list[*row]));
        else
            answer.notFound << value;
    }
    return answer;
}

} // namespace tessera
