#pragma once

#include "core/message.h"
#include "core/settingskeys.h"

#include <array>

namespace tessera {

/// A path that a page works on: a field, a button that chooses it and one that shows it in the file manager.
struct ToolPath {
    enum class Kind { File, Folder };

    const char* field; ///< object names; the buttons have the second one behind "button_" and "reveal_"
    const char* name;
    const char* label; ///< text keys
    const char* title; ///< of the panel that chooses it
    const ChosenKey& key; ///< where what was chosen is stored
    Kind kind;
    const char* extensions = ""; ///< that are offered as a filter, parted by blanks
};

// Deliberate: two fields share a setting, and the path of the old favourites is stored where that of the
// -listxml text is.
// clang-format off
inline constexpr ToolPath selectlistxml{
    "listxmlTextField", "listxml", textKey("convert_listxml"), textKey("choose_listxml"),
    keys::listxmlPath, ToolPath::Kind::File, "xml"};
inline constexpr ToolPath selectlocalize{
    "mame32jpTextField", "mame32jp", textKey("convert_titles"), textKey("choose_titlelist"),
    keys::localizePath, ToolPath::Kind::File, "lst txt"};
inline constexpr ToolPath selectListfull2{
    "listfullTextField2", "listfull2", textKey("tool_listfull"), textKey("choose_listfull"),
    keys::listfullPath, ToolPath::Kind::File, "txt"};
inline constexpr ToolPath selectROMsfolder2{
    "rompathTextField2", "rompath2", textKey("tool_roms"), textKey("choose_roms"),
    keys::RomsPath, ToolPath::Kind::Folder};
inline constexpr ToolPath selectListfull1{
    "listfullTextField1", "listfull1", textKey("tool_listfull"), textKey("choose_listfull"),
    keys::listfullPath, ToolPath::Kind::File, "txt"};
inline constexpr ToolPath selectROMsfolder1{
    "rompathTextField1", "rompath1", textKey("tool_roms"), textKey("choose_oldroms"),
    keys::romsfolderPath, ToolPath::Kind::Folder};
inline constexpr ToolPath selectMovefolder{
    "movepathTextField", "movepath", textKey("separation_destination"), textKey("choose_movefolder"),
    keys::movefolderPath, ToolPath::Kind::Folder};
inline constexpr ToolPath selectVerifytxt{
    "verifyromsTextField", "verifyroms", textKey("verification_file"), textKey("choose_verifyroms"),
    keys::verifyromsText, ToolPath::Kind::File, "txt"};
inline constexpr ToolPath selectFavoritesxml{
    "favoritesTextField", "favorites", textKey("favourites_file"), textKey("choose_oldfavourites"),
    keys::listxmlPath, ToolPath::Kind::File, "xml"};
// clang-format on

/// By the tags that show_file_in_finder2() takes, the first one 1.
inline constexpr std::array taggedPaths{&selectListfull2, &selectROMsfolder2, &selectROMsfolder1,
                                        &selectListfull1, &selectMovefolder,  &selectlistxml,
                                        &selectlocalize,  &selectVerifytxt,   &selectFavoritesxml};

} // namespace tessera
