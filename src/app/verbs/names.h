#pragma once

#include <array>
#include <string_view>

namespace tessera {

/// What `tessera` takes for a verb; anything else opens the windows.
inline constexpr std::array<std::string_view, 15> verbNames{
    "arguments", "build",     "command", "convert",  "convert-favourites",
    "diff",      "existence", "export",  "history",  "launch",
    "list",      "picture",   "script",  "separate", "verify"};

} // namespace tessera
