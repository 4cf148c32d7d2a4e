#pragma once

class QWidget;

namespace tessera {

class EmulatorProfile;
struct OptionRow;

/// Marks the controls of an option that the emulator does not know, and says why; without a profile nothing
/// is marked. They stay enabled: what they hold counts for the next emulator.
void markUnknownOptions(QWidget& page, const OptionRow& row, const EmulatorProfile* profile);

} // namespace tessera
