#pragma once

#include "core/sitehost.h"
#include "core/urltemplate.h"

#include <array>
#include <optional>

namespace tessera {

/// A web site with a page for each set. Its host is a setting; none is shipped, since sites come and go.
struct InformationSite {
    int number; ///< as it is named, from 1
    SiteHost host;
    const char* page; ///< what follows the host and its slash
};

/// By the position in the pop-up, where the settings hold it.
// clang-format off
inline constexpr std::array<InformationSite, 8> informationSites{{
    {1, firstSharedHost,        "index.php?p=roms&jeu={$gamename}"},
    {2, {&keys::InfositeHost2}, "php/emulator_game.php?id=mame&game={$gamename}"},
    {3, {&keys::InfositeHost3}, "game/{$gamename}"},
    {4, {&keys::InfositeHost4}, "r/{$gamename}"},
    {5, secondSharedHost,       "maws/romset/{$gamename}"},
    {6, {&keys::InfositeHost6}, "index.php?gioco={$gamename}"},
    {7, {&keys::InfositeHost7}, "?snap_LANGUE=english&arg_ROMC_ZIP={$gamename}"},
    // Deliberately once more.
    {1, firstSharedHost,        "index.php?p=roms&jeu={$gamename}"},
}};
// clang-format on

/// At this position the template stays as it is; behind it the user's own site follows.
inline constexpr int keptSite = 8;

/// `settingOf` gives a setting's text. A site without a host has an empty template, like every position
/// behind the table; nothing where the template is kept.
std::optional<QString> siteTemplate(int index, const SettingReader& settingOf);

/// The page for a set: each "{$gamename}" is its name. Nothing where that is no address of a web page.
std::optional<QUrl> gamePage(const QString& siteTemplate, const QString& name);

} // namespace tessera
