#pragma once

#include <QString>
#include <QUrl>

#include <optional>

/// The status line of a download, replaced at each step. Lengths are in bytes; an unknown one is -1.
namespace tessera::downloadtexts {

inline constexpr QLatin1StringView notAnImage("Snap Download:  Cancel, not an image.\n");
inline constexpr QLatin1StringView cancelled("Snap Download:  Cancel.\n");
inline constexpr QLatin1StringView failed("Snap Download:  Error.\n");

QString requested(const QUrl& url);
QString answered(double expectedLength);
/// Nothing where the length is unknown: the line stays as it is.
std::optional<QString> received(double length, double expectedLength);
/// Deliberately the expected length, also where it is unknown.
QString finished(double expectedLength);

} // namespace tessera::downloadtexts
