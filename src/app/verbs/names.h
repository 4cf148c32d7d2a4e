#pragma once

#include <array>
#include <string_view>

namespace tessera {

/// What `tessera` takes for a verb; anything else opens the windows.
inline constexpr std::array<std::string_view, 11> verbNames{"arguments", "build",    "command", "convert",
                                                            "existence", "export",   "launch",  "list",
                                                            "script",    "separate", "verify"};

} // namespace tessera
