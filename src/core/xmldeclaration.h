#pragma once

#include <optional>
#include <string_view>

namespace tessera {

/// The line "<?xml ...?>" that an XML text may begin with; `encoding` is empty where it names none.
struct XmlDeclaration {
    std::string_view encoding;
    std::size_t length = 0; ///< of the whole declaration
};

/// Nothing where the text does not begin with a well-formed one.
std::optional<XmlDeclaration> xmlDeclaration(std::string_view text);

} // namespace tessera
