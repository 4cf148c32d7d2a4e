#pragma once

#include "catalogue/gamerecord.h"
#include "core/failure.h"

#include <expected>
#include <span>
#include <string>
#include <string_view>

namespace tessera {

/// The text of a store file that holds the records in their order; absent values are left out.
std::string storeText(std::span<const GameRecord> records);

/// Whether a text is what storeText() gives for these records, whatever its UUID.
bool isStoreText(std::string_view text, std::span<const GameRecord> records);

/// Writes it as the whole content of the file at `path`; after a failure the old content stands.
std::expected<void, Failure> writeStore(const QString& path, std::span<const GameRecord> records);

} // namespace tessera
