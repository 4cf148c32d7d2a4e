#pragma once

#include <string_view>

namespace tessera {

/// How far a typed word is from another: so many letters must be put in, left out, replaced, or swapped with
/// the next one. Both count bytes, and are at most `most` + 1, which is too far.
struct EditDistance {
    unsigned whole = 0;
    unsigned beginning = 0; ///< from that beginning of the other word which is nearest
};

EditDistance editDistance(std::string_view typed, std::string_view word, unsigned most);

} // namespace tessera
