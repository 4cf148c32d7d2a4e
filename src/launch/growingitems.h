#pragma once

#include "core/settingskeys.h"
#include "launch/launchoptions.h"
#include "launch/popupitems.h"

#include <QStringList>

#include <span>

namespace tessera {

class DefaultsController;

/// A pop-up that has more items than the shipped ones: what an emulator offers besides, and BIOSes of the
/// user's games. Settings hold positions, so those that were once chosen are kept in a setting of their own,
/// in the order in which they came; none is ever removed or moved, and a position means the same title with
/// every emulator.
struct GrowingItems {
    const ChosenKey& kept;
    std::span<const PopupItem> shipped;
};

inline constexpr GrowingItems growingVideoDrivers{keys::KeptVideoDrivers, videoDrivers};
inline constexpr GrowingItems growingScaleModes{keys::KeptScaleModes, scaleModes};
inline constexpr GrowingItems growingSoundOutputs{keys::KeptSoundOutputs, soundOutputs};
inline constexpr GrowingItems growingBiosSets{keys::LearntBiosTitles, biosSets};

/// The titles behind the shipped ones.
QStringList keptTitles(const DefaultsController& defaults, const GrowingItems& items);

/// Those of `titles` that are in the pop-up nowhere yet. What could not stand on a command line as one word
/// is none of them.
QStringList newTitles(const DefaultsController& defaults, const GrowingItems& items,
                      const QStringList& titles);

/// Keeps the new ones of them.
void keepTitles(DefaultsController& defaults, const GrowingItems& items, const QStringList& titles);

/// Where the pop-up has that title; -1 for nowhere.
int positionOf(const DefaultsController& defaults, const GrowingItems& items, const QString& title);

/// The stored position with its title; none where the pop-up has no such position.
PopupState storedState(const DefaultsController& defaults, const Key<float>& key, const GrowingItems& items);

} // namespace tessera
