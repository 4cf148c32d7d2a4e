#pragma once

#include "platform/websites.h"

namespace tessera {

// clang-format off
inline constexpr std::array<WebSite, 8> informationSites{{
    {1, firstSharedHost,        {"index.php?p=roms&jeu={$gamename}"}},
    {2, {&keys::InfositeHost2}, {"php/emulator_game.php?id=mame&game={$gamename}"}},
    {3, {&keys::InfositeHost3}, {"game/{$gamename}"}},
    {4, {&keys::InfositeHost4}, {"r/{$gamename}"}},
    {5, secondSharedHost,       {"maws/romset/{$gamename}"}},
    {6, {&keys::InfositeHost6}, {"index.php?gioco={$gamename}"}},
    {7, {&keys::InfositeHost7}, {"?snap_LANGUE=english&arg_ROMC_ZIP={$gamename}"}},
    // Deliberately once more.
    {1, firstSharedHost,        {"index.php?p=roms&jeu={$gamename}"}},
}};
// clang-format on

inline constexpr std::array ownInformationTemplate{ChosenKey{keys::VisitedRomPath.name}};

/// Web sites with a page for each set, by the position in the pop-up. Between the sites and the user's own is
/// a position at which the template stays as it is.
inline constexpr SiteTable informationSiteTable{
    .chosen = &keys::Rominfosite,
    .sites = informationSites,
    .own = 9,
    .ownTemplates = ownInformationTemplate,
    .kept = 8,
};

/// The page for a set: each "{$gamename}" is its name. Nothing where that is no address of a web page.
inline std::optional<QUrl> gamePage(const QString& siteTemplate, const QString& name)
{
    return webAddress(withGameName(siteTemplate, name));
}

} // namespace tessera
