#pragma once

#include <expected>
#include <string>

namespace tessera {

/// Turns the bytes of an XML text into UTF-8 without a byte-order mark, by their byte-order mark or else by
/// the encoding that their declaration names, or else as UTF-8. The error is the name of the encoding in
/// which the bytes are no text, or which is not known.
std::expected<std::string, std::string> xmlToUtf8(std::string bytes);

} // namespace tessera
