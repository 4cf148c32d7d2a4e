#pragma once

#include <array>
#include <cstdint>

namespace tessera {

// Vectors, because nothing plainer is as fast. On MAME's own list of 269 MB, while a conversion in two parts
// took 1.6 times as long as one reading (1.0 where nobody else uses the machine), std::string_view::find
// took 1.9 times for every
// "<" alone, and 3.6 times for every "=" too, which what is looked for inside tags would need; ten needles by
// memmem took 10 times. Each of these in two parts as well, and nothing converted.

/// How many bytes are looked at together.
inline constexpr std::size_t candidateBlock = 128;

/// The bytes of one block where a needle may be noticed. There are false alarms, but no needle is missed.
struct CandidateBlock {
    std::array<std::uint64_t, candidateBlock / 64> places; ///< a bit for each byte, the lowest for the first
    std::array<std::uint8_t, candidateBlock> buckets; ///< for each byte a bit for each bucket
};

/// Looks at whole blocks from `from` on, up to `to`, and stops at the first that holds a candidate: its start
/// is returned and `block` filled. Otherwise the end of the last whole block. `hasNul` is set where a block
/// held a NUL. Three bytes after `to` are readable.
using CandidateSearch
    = const char* (*)(const char* from, const char* to, CandidateBlock& block, bool& hasNul);

/// The fastest one for this processor.
CandidateSearch candidateSearch();

/// One byte after the other, on any processor.
const char* findCandidatesPlainly(const char* from, const char* to, CandidateBlock& block, bool& hasNul);

} // namespace tessera
