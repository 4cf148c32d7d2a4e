#pragma once

#include "catalogue/gamerecord.h"
#include "catalogue/recordset.h"

#include <span>

namespace tessera {

/// The favourites whose set is not in the catalogue any more. Without a catalogue none is known to be gone.
RecordSet goneFavourites(std::span<const GameRecord> favourites, std::span<const GameRecord> catalogue);

} // namespace tessera
