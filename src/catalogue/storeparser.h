#pragma once

#include "catalogue/storedcatalogue.h"
#include "core/failure.h"

#include <expected>
#include <string>

namespace tessera {

/// Reads any well-formed store through the XML reader: other orders, indents, encodings, comments, CDATA,
/// objects of other types and relationships (both passed over), attributes left out (absent in the record).
/// - Objects, but none of a game record, are another program's store: a failure. No object at all is an empty
///   catalogue.
/// - Where an object has an attribute twice, the last one counts.
/// - Entities are never expanded but for the five predefined ones: a reference to another one stays as it is
/// written.
/// - Bytes that are no text in the store's encoding are a failure. They could be read as U+FFFD, but the next
/// save
///   would then make that loss a lasting one.
/// `path` is for the failures' texts.
std::expected<StoredCatalogue, Failure> parseStore(std::string bytes, const QString& path);

} // namespace tessera
