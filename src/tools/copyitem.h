#pragma once

#include "core/failure.h"

#include <cstdint>
#include <expected>
#include <functional>
#include <stop_token>
#include <string>
#include <string_view>

namespace tessera {

/// Who looks on while something is copied.
struct CopyWatch {
    std::stop_token stop;
    std::function<void(std::int64_t bytes)> copied; ///< so many more; may be empty
};

/// The failure's key where somebody asked to stop.
inline constexpr std::string_view copyCancelled = textKey("copy_cancelled");

/// Copies a file, a link, or a folder with all that is in it, from one folder into another under its own
/// name, with its times and permissions. Nothing is removed and nothing replaced; the copy is there whole or
/// not at all. A link stays a link, so that none leads round. `into` itself is left out where it lies in what
/// is copied. Paths and names are the file system's bytes.
std::expected<void, Failure> copyItem(const std::string& from, const std::string& name,
                                      const std::string& into, const CopyWatch& watch);

/// As many bytes as such a copy would have.
std::int64_t itemSize(const std::string& from, const std::string& name, const std::string& into);

} // namespace tessera
