#include "tools/conversion.h"

#include "tools/titletable.h"

#include <QFile>

namespace tessera {

namespace {

// Bytes; real lists have less than one MB, a device may have no end.
constexpr qint64 titlesLimit = qint64{64} << 20;
// As much as stays in the processor's cache between being read and being looked at.
constexpr std::size_t readAtOnce = std::size_t{128} * 1024;

std::expected<ConvertedList, Failure> convert(QFile& file, ListxmlConverter& converter)
{
    for (;;) {
        const std::span<char> room = converter.room(readAtOnce);
        const qint64 count = file.read(room.data(), readAtOnce);
        if (count < 0)
            return std::unexpected(Failure{"convert_not_read", {file.fileName(), file.errorString()}});
        if (count == 0)
            return converter.finish();
        if (const auto taken = converter.extend(static_cast<std::size_t>(count)); !taken)
            return std::unexpected(taken.error());
        if (converter.shouldBeginAgain() && !file.isSequential())
            return converter.finish();
    }
}

} // namespace

QString conversionReport(std::size_t games)
{
    return QString(conversiontexts::finished).arg(games);
}

std::expected<TitleTable, Failure> readTitles(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::unexpected(Failure{"convert_not_read", {path, file.errorString()}});
    const QByteArray bytes = file.read(titlesLimit + 1);
    if (file.error() != QFileDevice::NoError)
        return std::unexpected(Failure{"convert_not_read", {path, file.errorString()}});
    if (bytes.size() > titlesLimit)
        return std::unexpected(Failure{"convert_no_titles", {path}});
    return TitleTable({bytes.data(), static_cast<std::size_t>(bytes.size())});
}

std::expected<ConvertedList, Failure> convertFile(const QString& listxml, const TitleTable& titles,
                                                  ConversionOptions options)
{
    QFile file(listxml);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::unexpected(Failure{"convert_not_read", {listxml, file.errorString()}});
    ListxmlConverter converter(titles, options);
    auto converted = convert(file, converter);
    if (!converter.shouldBeginAgain() || file.isSequential() || !file.seek(0))
        return converted;
    ListxmlConverter again(titles, options, ElementName::Game);
    return convert(file, again);
}

std::expected<ConvertedList, Failure> convertFiles(const QString& listxml, const QString& titles,
                                                   ConversionOptions options)
{
    const auto table = readTitles(titles);
    if (!table)
        return std::unexpected(table.error());
    return convertFile(listxml, *table, options);
}

} // namespace tessera
