#include "favourites/gonefavourites.h"

#include <unordered_set>

namespace tessera {

RecordSet goneFavourites(std::span<const GameRecord> favourites, std::span<const GameRecord> catalogue)
{
    RecordSet gone(favourites.size());
    if (favourites.empty() || catalogue.empty())
        return gone;
    // The favourites are few, so the set holds their names rather than the catalogue's.
    std::unordered_set<std::string_view> wanted;
    for (const GameRecord& favourite : favourites)
        wanted.insert(favourite[Field::Name]);
    for (const GameRecord& game : catalogue)
        wanted.erase(game[Field::Name]);
    for (std::uint32_t i = 0; i < favourites.size(); ++i) {
        if (wanted.contains(favourites[i][Field::Name]))
            gone.insert(i);
    }
    return gone;
}

} // namespace tessera
