#include "catalogue/search/editdistance.h"

#include <algorithm>
#include <array>

namespace tessera {

namespace {

// Longer words are never a slip away from each other, or nobody knows what was meant.
constexpr std::size_t longest = 47;

using Row = std::array<unsigned, longest + 1>;

} // namespace

EditDistance editDistance(std::string_view typed, std::string_view word, unsigned most)
{
    const unsigned tooFar = most + 1;
    if (typed.size() > longest || word.size() + most < typed.size())
        return {tooFar, tooFar};
    // What goes on behind the beginning plays no part in it.
    const bool isWhole = word.size() <= typed.size() + most;
    word = word.substr(0, typed.size() + most);
    word = word.substr(0, longest);
    std::array<Row, 3> rows{}; // of the letter before the last one, of the last one, of this one
    Row* before = rows.data();
    Row* last = &rows[1];
    Row* now = &rows[2];
    for (unsigned j = 0; j <= word.size(); ++j)
        (*now)[j] = j;
    for (std::size_t i = 1; i <= typed.size(); ++i) {
        std::swap(before, last);
        std::swap(last, now);
        (*now)[0] = static_cast<unsigned>(i);
        unsigned least = (*now)[0];
        for (std::size_t j = 1; j <= word.size(); ++j) {
            const unsigned other = typed[i - 1] == word[j - 1] ? 0 : 1;
            unsigned distance = std::min({(*last)[j] + 1, (*now)[j - 1] + 1, (*last)[j - 1] + other});
            if (i > 1 && j > 1 && typed[i - 1] == word[j - 2] && typed[i - 2] == word[j - 1])
                distance = std::min(distance, (*before)[j - 2] + 1);
            (*now)[j] = distance;
            least = std::min(least, distance);
        }
        if (least > most)
            return {tooFar, tooFar};
    }
    const unsigned whole = isWhole ? (*now)[word.size()] : tooFar;
    const unsigned beginning
        = *std::min_element(now->begin(), now->begin() + static_cast<std::ptrdiff_t>(word.size()) + 1);
    return {std::min(whole, tooFar), std::min(beginning, tooFar)};
}

} // namespace tessera
