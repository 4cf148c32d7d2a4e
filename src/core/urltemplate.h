#pragma once

#include <QString>
#include <QUrl>

#include <optional>

namespace tessera {

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

} // namespace tessera
