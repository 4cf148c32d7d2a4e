#pragma once

#include <cstdint>
#include <vector>

namespace tessera {

class Favourites;
class PlayedGames;

/// What favourites are sorted by besides the attributes of the game: nothing, their options, how often and
/// when last they were played.
enum class FavouriteOrder { AsTheyStand, Option, Times, Last };

/// A number for each favourite; they sort as what they stand for. One that was never played, or has no
/// options, goes first.
std::vector<std::uint64_t> orderNumbers(const Favourites& favourites, const PlayedGames& played,
                                        FavouriteOrder order);

} // namespace tessera
