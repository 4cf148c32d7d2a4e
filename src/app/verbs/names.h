#pragma once

#include <array>
#include <string_view>

namespace tessera {

/// What `tessera` takes for a verb; anything else opens the windows.
inline constexpr std::array<std::string_view, 9> verbNames{
    "arguments", "build", "convert", "existence", "history", "launch", "list", "separate", "verify"};

} // namespace tessera
