#pragma once

#include "catalogue/listxmlscanner.h"

#include <optional>

namespace tessera {

/// What an element says, as it stands there. A value that it does not give is nothing, not an empty text.
struct MachineFields {
    std::string_view type;
    std::optional<std::string_view> name;
    std::optional<std::string_view> cloneof;
    std::optional<std::string_view> title;
    std::optional<std::string_view> year;
    std::optional<std::string_view> maker;
    std::optional<std::string_view> status;
    std::optional<std::string_view> device;
};

/// The values are searched one after another, each from the start of the one found before: one that stands
/// before it is not seen. This order, and that an attribute ends only at a quotation mark with a blank after
/// it, are deliberate: old stores were made so.
MachineFields readFields(const ListxmlElement& element);

} // namespace tessera
