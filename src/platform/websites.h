#pragma once

#include "core/settingskeys.h"

#include <QStringList>
#include <QUrl>

#include <optional>
#include <span>

namespace tessera {

class DefaultsController;

/// The item of a pop-up of sites that stands for the user's own.
inline constexpr QLatin1StringView ownSite("Other site");

/// A site's page as a template. The host is what the user typed, alone or with the scheme that it is to be
/// asked by; without one there is no template.
QString templateAt(const QString& host, QLatin1StringView page);

/// Each "{$gamename}" becomes the set name. A name is text from a file: whatever it holds, it stays one part
/// of the address.
QString withGameName(QString siteTemplate, const QString& name);

/// Nothing where the text is no address of a web page. Deliberate: only http and https are opened, since any
/// other scheme would start some program with what stands in a text.
std::optional<QUrl> webAddress(const QString& text);

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
