#include "catalogue/search/hiddenset.h"

#include "catalogue/search/gamesearch.h"

#include <algorithm>

namespace tessera {

namespace {

bool leavesOut(const Term& term)
{
    return term.negated && term.applies;
}

} // namespace

std::optional<HiddenSet> hiddenSet(const GameSearch& search, const Query& query)
{
    std::string name;
    for (const SearchedWords* word : query.rankedWords())
        name += word->text;
    if (name.empty() || std::ranges::none_of(query.terms(), leavesOut))
        return std::nullopt;
    const std::vector<std::uint32_t> named = search.named(name);
    if (named.empty())
        return std::nullopt;
    std::vector<Term> wanted(query.terms().begin(), query.terms().end());
    std::erase_if(wanted, leavesOut);
    const Found found = search.find(Query(std::move(wanted)));
    for (const Term& term : query.terms()) {
        if (!leavesOut(term))
            continue;
        const Found left = search.find(Query(std::vector{term}));
        for (const std::uint32_t record : named) {
            if (found.records.contains(record) && !left.records.contains(record))
                return HiddenSet{record, &term};
        }
    }
    return std::nullopt;
}

} // namespace tessera
