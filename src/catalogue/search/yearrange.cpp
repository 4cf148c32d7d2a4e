#include "catalogue/search/yearrange.h"

namespace tessera {

namespace {

constexpr std::size_t yearDigits = 4;

} // namespace

std::optional<YearRange> yearRange(std::string_view fourDigits)
{
    if (fourDigits.size() != yearDigits || fourDigits.front() == '?')
        return std::nullopt;
    unsigned first = 0;
    unsigned last = 0;
    bool known = true;
    for (const char c : fourDigits) {
        const bool digit = c >= '0' && c <= '9';
        if (!(digit && known) && c != '?')
            return std::nullopt;
        known = digit;
        first = first * 10 + (digit ? static_cast<unsigned>(c - '0') : 0);
        last = last * 10 + (digit ? static_cast<unsigned>(c - '0') : 9);
    }
    return YearRange{static_cast<std::uint16_t>(first), static_cast<std::uint16_t>(last)};
}

std::optional<YearRange> recordedYear(std::string_view value)
{
    if (value.size() > yearDigits && value[yearDigits] >= '0' && value[yearDigits] <= '9')
        return std::nullopt;
    return yearRange(value.substr(0, yearDigits));
}

} // namespace tessera
