#pragma once

#include "tools/listxmlconverter.h"
#include "tools/watch.h"

#include <QFile>
#include <QThread>

namespace tessera {

/// What the information line says of a conversion; the same in every language.
namespace conversiontexts {
inline constexpr QLatin1StringView started("Now converting...");
inline constexpr QLatin1StringView noListxml("listxml.xml file is not found.");
inline constexpr QLatin1StringView noTitles("mame32jp.lst file is not found.");
inline constexpr QLatin1StringView notWritten("Error writing file at %1 - %2");
inline constexpr QLatin1StringView finished("The conversion work is finished.  ( %1 games )");
inline constexpr QLatin1StringView logged("Search end.");
} // namespace conversiontexts

QString conversionReport(std::size_t games);
/// Why not all of a list was converted.
Failure stopReason(const StoppedAt& stopped);

/// The title list at a path.
std::expected<TitleTable, Failure> readTitles(const QString& path);

/// A saved list, parted where no element is open: behind end tags. Each part can be converted by itself.
struct ListxmlParts {
    ElementName name = ElementName::Undecided; ///< as the first start tag decides
    std::vector<qint64> ends; ///< bytes from the file's start, rising; the last is the file's size
};

/// About equal parts, at most `most`. One part where the file is small, or is a pipe, or has no end tag near
/// where it would be parted.
ListxmlParts partsOf(QFile& file, int most);

/// Converts a saved list. One that can be read from its start again is begun again where its elements turn
/// out to be called "game" after all; in a pipe the first element decides. Large ones are converted in parts
/// beside each other, at most `threads`.
std::expected<ConvertedList, Failure> convertFile(const QString& listxml, const TitleTable& titles,
                                                  ConversionOptions options, const Watch& watch = {},
                                                  int threads = QThread::idealThreadCount());

/// Both files in, the complete store out.
std::expected<ConvertedList, Failure> convertFiles(const QString& listxml, const QString& titles,
                                                   ConversionOptions options, const Watch& watch = {});

} // namespace tessera
