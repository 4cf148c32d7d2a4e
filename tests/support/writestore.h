#pragma once

#include "catalogue/storewriter.h"
#include "core/atomicfile.h"

namespace tessera {

/// A store file of these records, whatever stood at the path.
inline std::expected<void, Failure> writeStore(const QString& path, std::span<const GameRecord> records)
{
    return writeAtomically(path, storeText(records));
}

} // namespace tessera
