#pragma once

#include "core/settingskeys.h"

#include <QStringList>

#include <optional>
#include <span>

namespace tessera {

class DefaultsController;

/// Where the host of a web site is kept; none is shipped, since sites come and go.
struct SiteHost {
    const ChosenKey* key;
    /// Where its pictures' host was kept while that was a setting of its own; read where the other is empty.
    const ChosenKey* former = nullptr;
};

/// Two web sites have pages about games and pictures of them.
// clang-format off
inline constexpr SiteHost firstSharedHost {&keys::InfositeHost1, &keys::SnapsiteHost1};
inline constexpr SiteHost secondSharedHost{&keys::InfositeHost5, &keys::SnapsiteHost3};
// clang-format on

/// A web site with something about each set.
struct WebSite {
    int number; ///< as it is named, from 1
    SiteHost host;
    /// What follows the host and its slash, by the kind of page; null where the site has none of the kind.
    std::array<const char*, 3> pages;
};

/// The sites among which a pop-up of the preferences chooses. The user's own has a template for each kind.
struct SiteTable {
    const Key<float>* chosen; ///< holds the position in the pop-up
    std::span<const WebSite> sites; ///< by that position
    int own; ///< the position of the user's own site
    std::span<const ChosenKey> ownTemplates; ///< by kind
    /// At this position the templates stay as they are, at any other that is not named here they are empty.
    /// Without it they stay everywhere.
    std::optional<int> kept;

    /// Null where there is none but perhaps the user's own.
    const WebSite* siteAt(int position) const;
};

/// What the user typed, without blanks around it.
QString hostText(const SiteHost& host, const DefaultsController& defaults);

/// The templates of the site at this position, by kind; empty ones where it has no host. Nothing where the
/// templates stay as they are.
std::optional<QStringList> templatesAt(const SiteTable& table, int position,
                                       const DefaultsController& defaults);

/// The number of the site at this position where that has no host, and so no pages.
std::optional<int> siteWithoutHost(const SiteTable& table, int position, const DefaultsController& defaults);

} // namespace tessera
