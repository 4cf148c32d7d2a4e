#pragma once

#include "core/settingskeys.h"
#include "launch/growingitems.h"
#include "launch/launchoptions.h"
#include "launch/popupitems.h"

#include <array>
#include <span>
#include <variant>

/// The launch options, each once: whoever shows, stores, reads or sends one goes by its row.
namespace tessera {

/// The pages of the preferences that hold launch options.
enum class Page { General, Video, Effects, Sound, Input, Misc };

/// Where a control stands.
struct OptionPlace {
    Page page;
    /// From 1, controls of one line beside each other; 0 where the page itself places it. A group of buttons
    /// takes this line and one more for each further button.
    int line = 0;
    const char* label = nullptr; ///< of the line; none leaves the column free
    bool startsGroup = false; ///< a thin line is above it
};

/// What the command-line emulator is sent.
struct SdlArgument {
    int row = 0; ///< its place among what is sent; 0 where another control's row sends it
    /// The options that it stands for, parted by blanks. A "=" says that a value follows. It is marked where
    /// the emulator knows none of them; of a group of buttons, each has its own.
    const char* options;
    /// For each position of a pop-up "+" or "-" for each option: "-rotate" or "-norotate". Nothing is sent
    /// for a position that has none.
    std::array<const char*, 7> positions{};
    /// What is not sent like that: a box as "-mouse" or "-nomouse", anything else as the option and its
    /// value.
    void (*append)(const LaunchOptions& options, QStringList& list) = nullptr;
};

/// What MAME OS X is sent: an option and its value, which for a box and for a bare position is "1" or "0".
struct OsxArgument {
    int row = 0; ///< its place among what is sent; 0 where nothing is
    const char* option = nullptr;
    QString (*value)(const LaunchOptions& options) = nullptr; ///< where it is another one
    bool withSoundOnly = false;
};

using OptionMember
    = std::variant<int LaunchOptions::*, QString LaunchOptions::*, PopupState LaunchOptions::*>;
using OptionSetting
    = std::variant<const Key<bool>*, const Key<float>*, const Key<QLatin1StringView>*, const ChosenKey*>;

struct OptionControl {
    const char* text = nullptr; ///< of a box; else the accessible name, where the label is not the name
    std::span<const PopupItem> items = {}; ///< of a pop-up
    const GrowingItems* growing = nullptr; ///< of a pop-up that the emulator or a game adds to
    std::span<const char* const> buttons = {}; ///< the texts of a group of radio buttons
};

struct OptionRow {
    const char* name; ///< of the control
    OptionMember member;
    OptionSetting setting;
    OptionControl control;
    OptionPlace place;
    SdlArgument sdl;
    OsxArgument osx = {};
};

/// In the order in which the command-line emulator is sent them.
std::span<const OptionRow> optionRows();
/// Of a control that has one.
const OptionRow& optionRow(const char* name);

} // namespace tessera
