#pragma once

class QWidget;

namespace tessera {

class EmulatorProfile;

/// Marks the controls of a page whose options the emulator does not know, and says why; without a profile
/// nothing is marked. They stay enabled: what they hold counts for the next emulator.
void markUnknownOptions(QWidget& page, const EmulatorProfile* profile);

} // namespace tessera
