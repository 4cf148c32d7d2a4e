#pragma once

#include "catalogue/storedcatalogue.h"
#include "core/failure.h"

#include <expected>
#include <string_view>

namespace tessera {

/// The store file at `path`, whole, or why it could not be read; then nothing of it is given.
std::expected<StoredCatalogue, Failure> readStore(const QString& path);

/// The same, of a file's bytes in memory; `path` is for the failures' texts.
std::expected<StoredCatalogue, Failure> readStoreText(std::string_view bytes, const QString& path = {});

} // namespace tessera
