#pragma once

#include <expected>
#include <optional>
#include <string>
#include <string_view>

namespace tessera {

/// The line "<?xml ...?>" that an XML text may begin with; `encoding` is empty where it names none.
struct XmlDeclaration {
    std::string_view encoding;
    std::size_t length = 0; ///< of the whole declaration
};

/// Nothing where the text does not begin with a well-formed one.
std::optional<XmlDeclaration> xmlDeclaration(std::string_view text);

/// Turns the bytes of an XML text into UTF-8 without a byte-order mark, by their byte-order mark or else by
/// the encoding that their declaration names, or else as UTF-8. The error is the name of the encoding in
/// which the bytes are no text, or which is not known.
std::expected<std::string, std::string> xmlToUtf8(std::string bytes);

} // namespace tessera
