#pragma once

#include <cstdint>

namespace tessera {

/// What the ROM folders hold of a set.
enum class Have : std::uint8_t {
    Missing,
    InParent, ///< nothing of its own, but its parent's archive, which may well hold it too
    Here, ///< an archive or a folder of its own
};

} // namespace tessera
