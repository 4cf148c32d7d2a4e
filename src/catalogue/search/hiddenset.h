#pragma once

#include <cstdint>
#include <optional>

namespace tessera {

class GameSearch;
class Query;
struct Term;

/// A machine whose set name was typed, and the term with a minus that hides it.
struct HiddenSet {
    std::uint32_t record = 0;
    const Term* by = nullptr; ///< of the query
};

/// Where a query's words, written as one, are a set name, and it would be found but for what is left out.
std::optional<HiddenSet> hiddenSet(const GameSearch& search, const Query& query);

} // namespace tessera
