#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessera {

/// UTF-8 of bytes in Shift JIS, code page 932; nothing where one of them is not valid in it. What ICU makes
/// of each character is asked once and kept, which is several times faster than ICU's own conversion.
std::optional<std::string> strictShiftJis(std::string_view bytes);

} // namespace tessera
