#pragma once

#include "tools/listxmlconverter.h"

#include <QString>
#include <QThread>

#include <cstdint>
#include <functional>
#include <stop_token>

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

/// Who watches a conversion. Once somebody asks to stop, what comes is of no use.
struct ConversionWatch {
    std::stop_token stop;
    /// So many bytes more of the list were read; told from any thread.
    std::function<void(std::int64_t more)> progress;
};

/// The title list at a path.
std::expected<TitleTable, Failure> readTitles(const QString& path);

/// Converts a saved list. One that can be read from its start again is begun again where its elements turn
/// out to be called "game" after all; in a pipe the first element decides. Large ones are converted in parts
/// beside each other, at most `threads`.
std::expected<ConvertedList, Failure> convertFile(const QString& listxml, const TitleTable& titles,
                                                  ConversionOptions options,
                                                  const ConversionWatch& watch = {},
                                                  int threads = QThread::idealThreadCount());

/// Both files in, the complete store out.
std::expected<ConvertedList, Failure> convertFiles(const QString& listxml, const QString& titles,
                                                   ConversionOptions options,
                                                   const ConversionWatch& watch = {});

} // namespace tessera
