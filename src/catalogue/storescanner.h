#pragma once

#include "catalogue/storedcatalogue.h"

#include <cstddef>
#include <functional>
#include <optional>

namespace tessera {

/// Puts the next bytes into the buffer and says how many; 0 at the end, negative when reading failed.
using ByteSource = std::function<std::ptrdiff_t(char* buffer, std::size_t size)>;

inline constexpr std::size_t scanWindow = std::size_t{256} * 1024;

/// Reads a store that stands in exactly the layout of storelayout.h, through a window of the given size, so
/// that the file is never in memory whole. Gives nothing as soon as a byte deviates; such a store is read
/// with parseStore(). `bytes` is the size of the store, as far as it is known.
std::optional<StoredCatalogue> scanStore(const ByteSource& source, std::size_t bytes,
                                         std::size_t window = scanWindow);

} // namespace tessera
