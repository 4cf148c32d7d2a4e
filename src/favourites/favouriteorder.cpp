#include "favourites/favouriteorder.h"

#include "favourites/favourites.h"
#include "favourites/playedgames.h"

#include <algorithm>
#include <numeric>

namespace tessera {

namespace {

std::uint64_t timesNumber(const std::optional<Played>& played)
{
    return played ? played->times : 0;
}

// 0 is for what was never played; a time before 1970, which a wrong clock gives, counts as 1.
std::uint64_t lastNumber(const std::optional<Played>& played)
{
    if (!played || !played->last.isValid())
        return 0;
    return static_cast<std::uint64_t>(std::max(qint64(1), played->last.toSecsSinceEpoch()));
}

// For each favourite the place of its options among the sorted options of all.
std::vector<std::uint64_t> optionNumbers(const Favourites& favourites)
{
    std::vector<QString> options;
    for (std::uint32_t i = 0; i < favourites.records().size(); ++i)
        options.push_back(favourites.value(i, FavouriteKey::Option));
    std::vector<QString> sorted = options;
    std::ranges::sort(sorted);
    std::vector<std::uint64_t> numbers;
    numbers.reserve(options.size());
    for (const QString& option : options)
        numbers.push_back(
            static_cast<std::uint64_t>(std::ranges::lower_bound(sorted, option) - sorted.begin()));
    return numbers;
}

} // namespace

std::vector<std::uint64_t> orderNumbers(const Favourites& favourites, const PlayedGames& played,
                                        FavouriteOrder order)
{
    if (order == FavouriteOrder::Option)
        return optionNumbers(favourites);
    std::vector<std::uint64_t> numbers(favourites.records().size(), 0);
    if (order == FavouriteOrder::AsTheyStand) {
        std::iota(numbers.begin(), numbers.end(), 0U);
        return numbers;
    }
    for (std::uint32_t i = 0; i < numbers.size(); ++i) {
        const auto game = played.played(favourites.value(i, FavouriteKey::Name));
        numbers[i] = order == FavouriteOrder::Times ? timesNumber(game) : lastNumber(game);
    }
    return numbers;
}

} // namespace tessera
