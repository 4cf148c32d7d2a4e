#pragma once

#include "core/failure.h"
#include "tools/watch.h"

#include <expected>
#include <memory>
#include <string>

namespace tessera {

/// The failure's key where somebody asked to stop.
inline constexpr const char* copyCancelled = textKey("copy_cancelled");

/// Copies files, links, and folders with all that is in them, from one folder into another under their own
/// names, with times and permissions. Nothing is removed and nothing replaced; a copy is there whole or not
/// at all. A link stays a link, so that none leads round. `into` itself is left out where it lies in what is
/// copied. Paths and names are the file system's bytes.
class ItemCopier
{
public:
    ItemCopier(const std::string& from, const std::string& into, const Watch& watch);
    ~ItemCopier();

    std::expected<void, Failure> copy(const std::string& name);

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

/// As many bytes as such a copy would have.
std::int64_t itemSize(const std::string& from, const std::string& name, const std::string& into);

} // namespace tessera
