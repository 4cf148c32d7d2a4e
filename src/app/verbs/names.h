#pragma once

#include <array>
#include <string_view>

namespace tessera {

/// What `tessera` takes for a verb; anything else opens the windows.
inline constexpr std::array<std::string_view, 10> verbNames{
    "arguments", "build",  "convert", "convert-favourites", "diff",
    "existence", "launch", "list",    "separate",           "verify"};

} // namespace tessera
