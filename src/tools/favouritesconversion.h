#pragma once

#include "catalogue/recorddictionary.h"
#include "core/failure.h"

#include <QDateTime>
#include <QList>

#include <expected>

namespace tessera {

/// What the tool says and logs; the same in every language.
namespace favouritestexts {
inline constexpr QLatin1StringView noFile("Old Favorites.xml file is not found.");
inline constexpr QLatin1StringView noData("Conversion data not found.");
inline constexpr QLatin1StringView finished("File conversion is now complete.");
inline constexpr QLatin1StringView kept("Backup files are copied successfully");
inline constexpr QLatin1StringView notKept("Could not copy the backup files");
inline constexpr QLatin1StringView notTrashed("error: %1");
} // namespace favouritestexts

/// The set names in a favourites file of the older form, in its order. What names no set is passed over.
std::expected<QStringList, Failure> oldFavourites(const QString& path);

/// A favourites file of the present form; the records' absent values have no entry in it. `path` is
/// for the failures' texts.
std::expected<QByteArray, Failure> favouritesText(const QList<RecordDictionary>& records,
                                                  const QString& path);

/// "jp.Plover.Tessera_Favorites_2026-01-02_030405.xml" beside the favourites file.
QString favouritesBackup(const QString& favourites, const QDateTime& when);

/// Renames the favourites file; never over something that has the name already.
std::expected<void, Failure> moveToBackup(const QString& favourites, const QString& backup);

} // namespace tessera
