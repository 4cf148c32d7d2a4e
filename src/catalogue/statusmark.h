#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tessera {

inline constexpr std::string_view noStatusMark = "plovermark_none";

struct StatusMark {
    std::string_view status;
    std::string_view image;
};

inline constexpr std::array statusMarks{
    StatusMark{"good", "plovermark_good"},
    StatusMark{"preliminary", "plovermark_preliminary"},
    StatusMark{"imperfect", "plovermark_imperfect"},
};

/// The image for the selected record's status; `status` is nothing when nothing is selected. Without an
/// answer the mark shown before stays: that is intended.
constexpr std::optional<std::string_view> statusMark(std::optional<std::string_view> status)
{
    if (!status)
        return noStatusMark;
    for (const StatusMark& mark : statusMarks) {
        if (mark.status == *status)
            return mark.image;
    }
    return std::nullopt;
}

} // namespace tessera
