#pragma once

#include "core/propertylist.h"

namespace tessera {

/// What stands in a file of favourites, or of what was played: an array of anything. A file with an outermost
/// value of another kind is a failure.
std::expected<std::vector<PropertyList>, Failure> readListItems(const QString& path);

} // namespace tessera
