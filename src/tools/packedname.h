#pragma once

#include "catalogue/eightbytes.h"

#include <cstdint>
#include <cstring>
#include <string_view>

namespace tessera {

/// A set name in two words, as nearly every one fits: it is compared and looked up without looking elsewhere.
class PackedName
{
public:
    PackedName() = default;

    /// Behind a name there are zero bytes, so that none may be its last.
    static bool fits(std::string_view name)
    {
        return !name.empty() && name.size() <= 2 * wordSize && name.back() != '\0';
    }
    /// Of a name that fits.
    static PackedName of(std::string_view name)
    {
        PackedName packed;
        if (name.size() <= wordSize) {
            packed.m_first = upToEight(name);
        } else {
            // The last eight bytes, without those that the first eight have already.
            packed.m_first = loadWord(name.data());
            packed.m_second
                = loadWord(name.data() + name.size() - wordSize) >> (8 * (2 * wordSize - name.size()));
        }
        return packed;
    }

    bool isNone() const { return (m_first | m_second) == 0; }
    /// Its high bits differ most.
    std::uint64_t hash() const
    {
        return (m_first ^ (m_second * 0x9E37'79B9'7F4A'7C15U)) * 0xD6E8'FEB8'6659'FD93U;
    }

    friend bool operator==(const PackedName&, const PackedName&) = default;

private:
    static constexpr std::size_t wordSize = sizeof(std::uint64_t);
    static constexpr std::size_t halfSize = sizeof(std::uint32_t);

    // Two pieces lie over each other and agree there, so that no byte is looked at alone.
    static std::uint64_t upToEight(std::string_view name)
    {
        const std::size_t size = name.size();
        if (size == wordSize)
            return loadWord(name.data());
        if (size >= halfSize)
            return loadHalf(name.data()) | loadHalf(name.data() + size - halfSize) << (8 * (size - halfSize));
        std::uint64_t word = 0;
        for (std::size_t i = 0; i < size; ++i)
            word |= std::uint64_t{static_cast<unsigned char>(name[i])} << (8 * i);
        return word;
    }

    static std::uint64_t loadHalf(const void* at)
    {
        std::uint32_t half = 0;
        std::memcpy(&half, at, sizeof half);
        if constexpr (std::endian::native == std::endian::big)
            half = __builtin_bswap32(half);
        return half;
    }

    std::uint64_t m_first = 0;
    std::uint64_t m_second = 0;
};

} // namespace tessera
