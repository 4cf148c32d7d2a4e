#include "catalogue/search/yearrange.h"

#include <string>

namespace tessera {

namespace {

constexpr std::size_t yearDigits = 4;
constexpr std::size_t shortDigits = 2;
constexpr char firstDecade = '7'; // of those in which there were machines

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

std::optional<YearRange> askedYear(std::string_view value)
{
    const bool isDecade = value.size() > shortDigits && value.ends_with("0s");
    if (isDecade)
        value.remove_suffix(1);
    if (value.size() != shortDigits && value.size() != yearDigits)
        return std::nullopt;
    std::string year(value);
    if (year.size() == shortDigits)
        year.insert(0, year.front() < firstDecade ? "20" : "19");
    auto range = value.size() == shortDigits && value.find('?') != std::string_view::npos ? std::nullopt
                                                                                          : yearRange(year);
    if (range && isDecade)
        range->last = static_cast<std::uint16_t>(range->first + 9);
    return range;
}

std::optional<YearRange> recordedYear(std::string_view value)
{
    if (value.size() > yearDigits && value[yearDigits] >= '0' && value[yearDigits] <= '9')
        return std::nullopt;
    return yearRange(value.substr(0, yearDigits));
}

} // namespace tessera
