#include "catalogue/listxmlcandidates.h"

#include "catalogue/listxmlneedles.h"

#include <cstring>

#if defined(__x86_64__)
#include <immintrin.h>
#elif defined(__aarch64__)
#include <arm_neon.h>
#endif

namespace tessera {

namespace {

// Which bytes of a fragment are looked at, from the candidate on.
constexpr std::array<std::size_t, 3> offsets{0, 1, 3};

// For each of those, the buckets by the byte's low four bits: a table that fits a vector register. Letters of
// either case share them.
using NibbleTable = std::array<std::uint8_t, 16>;

constexpr std::array<NibbleTable, offsets.size()> nibbleTables = [] {
    std::array<NibbleTable, offsets.size()> tables{};
    for (const NeedleRow& row : needleRows) {
        for (std::size_t i = 0; i < offsets.size(); ++i) {
            const auto byte = static_cast<unsigned char>(row.fragment[offsets[i]]);
            tables[i][byte & 15U] = static_cast<std::uint8_t>(tables[i][byte & 15U] | (1U << row.bucket));
        }
    }
    return tables;
}();

void notePlaces(CandidateBlock& block)
{
    block.places = {};
    for (std::size_t i = 0; i < candidateBlock; ++i)
        block.places[i / 64] |= std::uint64_t{block.buckets[i] != 0} << (i % 64);
}

#if defined(__x86_64__)

#define TESSERA_AVX2 __attribute__((target("avx2")))

TESSERA_AVX2 inline __m256i table(const NibbleTable& nibbles)
{
    return _mm256_broadcastsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i_u*>(nibbles.data())));
}

TESSERA_AVX2 inline __m256i load(const char* at)
{
    return _mm256_loadu_si256(reinterpret_cast<const __m256i_u*>(at));
}

TESSERA_AVX2 inline std::uint64_t places(__m256i low, __m256i high)
{
    const __m256i none = _mm256_setzero_si256();
    const auto empty = [](int mask) { return static_cast<std::uint32_t>(mask); };
    const std::uint64_t lowEmpty = empty(_mm256_movemask_epi8(_mm256_cmpeq_epi8(low, none)));
    const std::uint64_t highEmpty = empty(_mm256_movemask_epi8(_mm256_cmpeq_epi8(high, none)));
    return ~(lowEmpty | highEmpty << 32);
}

TESSERA_AVX2 const char* findCandidatesAvx2(const char* from, const char* to, CandidateBlock& block,
                                            bool& hasNul)
{
    constexpr std::size_t width = sizeof(__m256i);
    constexpr std::size_t count = candidateBlock / width;
    const __m256i first = table(nibbleTables[0]);
    const __m256i second = table(nibbleTables[1]);
    const __m256i third = table(nibbleTables[2]);
    __m256i smallest = _mm256_set1_epi8(-1);
    for (; static_cast<std::size_t>(to - from) >= candidateBlock; from += candidateBlock) {
        __m256i found[count];
        __m256i any = _mm256_setzero_si256();
#pragma GCC unroll 4
        for (std::size_t i = 0; i < count; ++i) {
            const char* const at = from + i * width;
            const __m256i bytes = load(at);
            smallest = _mm256_min_epu8(smallest, bytes);
            found[i] = _mm256_and_si256(_mm256_and_si256(_mm256_shuffle_epi8(first, bytes),
                                                         _mm256_shuffle_epi8(second, load(at + offsets[1]))),
                                        _mm256_shuffle_epi8(third, load(at + offsets[2])));
            any = _mm256_or_si256(any, found[i]);
        }
        if (!_mm256_testz_si256(any, any)) {
            std::memcpy(block.buckets.data(), found, sizeof found);
            block.places = {places(found[0], found[1]), places(found[2], found[3])};
            break;
        }
    }
    hasNul |= _mm256_movemask_epi8(_mm256_cmpeq_epi8(smallest, _mm256_setzero_si256())) != 0;
    return from;
}

#undef TESSERA_AVX2

#elif defined(__aarch64__)

const char* findCandidatesNeon(const char* from, const char* to, CandidateBlock& block, bool& hasNul)
{
    constexpr std::size_t width = sizeof(uint8x16_t);
    constexpr std::size_t count = candidateBlock / width;
    const uint8x16_t low = vdupq_n_u8(15);
    const auto load = [](const char* at) { return vld1q_u8(reinterpret_cast<const std::uint8_t*>(at)); };
    const uint8x16_t first = vld1q_u8(nibbleTables[0].data());
    const uint8x16_t second = vld1q_u8(nibbleTables[1].data());
    const uint8x16_t third = vld1q_u8(nibbleTables[2].data());
    uint8x16_t smallest = vdupq_n_u8(255);
    for (; static_cast<std::size_t>(to - from) >= candidateBlock; from += candidateBlock) {
        uint8x16_t found[count];
        uint8x16_t any = vdupq_n_u8(0);
        for (std::size_t i = 0; i < count; ++i) {
            const char* const at = from + i * width;
            const uint8x16_t bytes = load(at);
            smallest = vminq_u8(smallest, bytes);
            found[i] = vandq_u8(vandq_u8(vqtbl1q_u8(first, vandq_u8(bytes, low)),
                                         vqtbl1q_u8(second, vandq_u8(load(at + offsets[1]), low))),
                                vqtbl1q_u8(third, vandq_u8(load(at + offsets[2]), low)));
            any = vorrq_u8(any, found[i]);
        }
        if (vmaxvq_u8(any) != 0) {
            std::memcpy(block.buckets.data(), found, sizeof found);
            notePlaces(block);
            break;
        }
    }
    hasNul |= vminvq_u8(smallest) == 0;
    return from;
}

#endif

} // namespace

const char* findCandidatesPlainly(const char* from, const char* to, CandidateBlock& block, bool& hasNul)
{
    const auto nibble = [](char c) { return static_cast<unsigned char>(c) & 15U; };
    for (; static_cast<std::size_t>(to - from) >= candidateBlock; from += candidateBlock) {
        std::uint8_t any = 0;
        for (std::size_t i = 0; i < candidateBlock; ++i) {
            const char* const at = from + i;
            hasNul |= *at == '\0';
            block.buckets[i] = nibbleTables[0][nibble(*at)] & nibbleTables[1][nibble(at[offsets[1]])]
                & nibbleTables[2][nibble(at[offsets[2]])];
            any |= block.buckets[i];
        }
        if (any != 0) {
            notePlaces(block);
            break;
        }
    }
    return from;
}

CandidateSearch candidateSearch()
{
#if defined(__x86_64__)
    return __builtin_cpu_supports("avx2") ? findCandidatesAvx2 : findCandidatesPlainly;
#elif defined(__aarch64__)
    return findCandidatesNeon;
#else
    return findCandidatesPlainly;
#endif
}

} // namespace tessera
