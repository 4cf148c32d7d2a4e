#pragma once

#include "catalogue/gamerecord.h"

#include <span>
#include <string>
#include <string_view>

namespace tessera {

/// The text of a store file that holds the records in their order; absent values are left out.
std::string storeText(std::span<const GameRecord> records);

/// Whether a text is what storeText() gives for these records, whatever its UUID.
bool isStoreText(std::string_view text, std::span<const GameRecord> records);

} // namespace tessera
