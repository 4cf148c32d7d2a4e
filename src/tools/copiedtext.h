#pragma once

#include <string>
#include <string_view>

namespace tessera {

/// What is copied into a store as it stands. Deliberate: bytes that are not UTF-8, and characters that XML
/// cannot hold, become U+FFFD, or the store could not be read back. Nothing is escaped. Gives `bytes` itself
/// where nothing had to be replaced, else a view of `room`.
std::string_view copiedText(std::string_view bytes, std::string& room);

} // namespace tessera
