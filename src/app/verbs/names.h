#pragma once

#include <array>
#include <string_view>

namespace tessera {

/// What `tessera` takes for a verb; anything else opens the windows.
inline constexpr std::array<std::string_view, 8> verbNames{"arguments", "build", "convert",  "existence",
                                                           "launch",    "list",  "separate", "verify"};

} // namespace tessera
