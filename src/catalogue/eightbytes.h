#pragma once

#include <bit>
#include <cstdint>
#include <cstring>

/// Eight bytes looked at in one step. The first one in memory is the lowest of the word, on every machine.
namespace tessera {

constexpr std::uint64_t eachByte(std::uint8_t value)
{
    return 0x0101'0101'0101'0101U * value;
}

/// The high bit is set in each byte that is zero (and perhaps in bytes behind the first such one).
constexpr std::uint64_t zeroBytes(std::uint64_t word)
{
    return (word - eachByte(1)) & ~word & eachByte(0x80);
}

/// The high bit is set in the first byte that may not be copied just so: "<", "&", ">" or a control
/// character.
constexpr std::uint64_t stoppingBytes(std::uint64_t word)
{
    const std::uint64_t control = (word - eachByte(0x20)) & ~word & eachByte(0x80);
    return control | zeroBytes(word ^ eachByte('<')) | zeroBytes(word ^ eachByte('&'))
        | zeroBytes(word ^ eachByte('>'));
}

/// The lowest bit of each byte, brought together in eight bits. The others are zero.
constexpr std::uint64_t bitOfEachByte(std::uint64_t word)
{
    return (word * 0x0102'0408'1020'4080U) >> 56;
}

inline std::uint64_t loadWord(const void* at)
{
    std::uint64_t word = 0;
    std::memcpy(&word, at, sizeof word);
    if constexpr (std::endian::native == std::endian::big)
        word = __builtin_bswap64(word);
    return word;
}

} // namespace tessera
