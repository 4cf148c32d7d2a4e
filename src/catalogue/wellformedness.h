#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace tessera {

/// Where a text stops being well-formed XML: the offset of the offending byte, or the text's size where it
/// only ends too early; nothing for a well-formed document. The XML library is lenient (text behind the root,
/// several roots, unknown characters, an "&" of no reference), so nothing half-read would be told from
/// something whole without this. The text is UTF-8 of characters that XML allows. What a document type
/// declaration says is not looked at: an entity may have any name.
std::optional<std::size_t> illFormedAt(std::string_view text);

} // namespace tessera
