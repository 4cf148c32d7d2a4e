#pragma once

#include "artwork/artworkkinds.h"
#include "platform/websites.h"

namespace tessera {

// clang-format off
inline constexpr std::array<WebSite, 3> pictureSites{{
    {1, firstSharedHost,        {"mmedia/snap/{$gamename}",
                                 "mmedia/titles/{$gamename}",
                                 "mmedia/flyers/{$gamename}"}},
    {2, {&keys::SnapsiteHost2}, {"snap/{$gamename}",
                                 "titles/{$gamename}"}},
    {3, secondSharedHost,       {"maws/img/shots/progettosnaps/ingame/{$gamename}",
                                 "maws/img/shots/progettosnaps/titles/{$gamename}",
                                 "maws/img/flyers/{$gamename}"}},
}};
// clang-format on

inline constexpr std::array<ChosenKey, artworkKinds.size()> ownPictureTemplates{
    *artworkKinds[0].downloadTemplate,
    *artworkKinds[1].downloadTemplate,
    *artworkKinds[2].downloadTemplate,
};

/// Web sites with pictures, by the position in the pop-up. The kinds of page are those of artwork.
inline constexpr SiteTable pictureSiteTable{
    .chosen = &keys::Snapdownsite,
    .sites = pictureSites,
    .own = static_cast<int>(pictureSites.size()),
    .ownTemplates = ownPictureTemplates,
    .kept = std::nullopt,
};

/// Where a set's picture is. Deliberately ".png" alone for an empty template; fetching that fails.
inline QUrl pictureAddress(const QString& siteTemplate, const QString& name)
{
    return QUrl(withGameName(siteTemplate, name) + QStringLiteral(".png"));
}

} // namespace tessera
