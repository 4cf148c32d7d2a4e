#pragma once

#include "artwork/artworkkinds.h"
#include "core/sitehost.h"
#include "core/urltemplate.h"

namespace tessera {

/// A web site with pictures. Its host is a setting; none is shipped, since sites come and go.
struct PictureSite {
    int number; ///< as it is named, from 1
    SiteHost host;
    /// By kind, what follows the host and its slash; empty where the site has none.
    std::array<const char*, artworkKinds.size()> pages;
};

/// By the position in the pop-up, where the settings hold it.
// clang-format off
inline constexpr std::array<PictureSite, 3> pictureSites{{
    {1, firstSharedHost,        {"mmedia/snap/{$gamename}",
                                 "mmedia/titles/{$gamename}",
                                 "mmedia/flyers/{$gamename}"}},
    {2, {&keys::SnapsiteHost2}, {"snap/{$gamename}",
                                 "titles/{$gamename}",
                                 ""}},
    {3, secondSharedHost,       {"maws/img/shots/progettosnaps/ingame/{$gamename}",
                                 "maws/img/shots/progettosnaps/titles/{$gamename}",
                                 "maws/img/flyers/{$gamename}"}},
}};
// clang-format on

/// The user's own site follows the table.
inline constexpr int ownPictureSite = static_cast<int>(pictureSites.size());

/// A site's templates, by kind; `settingOf` gives a setting's text. A site without a host has empty ones.
/// Nothing at any other position: the templates stay as they are.
using PictureTemplates = std::array<QString, artworkKinds.size()>;
std::optional<PictureTemplates> pictureTemplates(int index, const SettingReader& settingOf);

/// Where a set's picture is. Deliberately ".png" alone for an empty template; fetching that fails.
QUrl pictureAddress(const QString& siteTemplate, const QString& name);

} // namespace tessera
