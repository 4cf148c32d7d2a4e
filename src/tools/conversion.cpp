#include "tools/conversion.h"

#include "tools/titletable.h"

#include <algorithm>
#include <future>
#include <limits>

namespace tessera {

namespace {

// Bytes; real lists have less than one MB, a device may have no end.
constexpr qint64 titlesLimit = qint64{64} << 20;
// As much as stays in the processor's cache between being read and being looked at.
constexpr qint64 readAtOnce = qint64{128} * 1024;

// More threads than these wait for the memory, not for a processor.
constexpr int mostParts = 4;

// Bytes. A smaller part is not worth a thread.
constexpr qint64 smallestPart = qint64{8} << 20;
// Real elements are shorter than this, nearly all of them.
constexpr qint64 probed = qint64{1} << 20;

QByteArray probe(QFile& file, qint64 from)
{
    return file.seek(from) ? file.read(probed) : QByteArray();
}

ElementName nameIn(const QByteArray& text)
{
    const auto game = text.indexOf("<game ");
    const auto machine = text.indexOf("<machine ");
    if (game < 0 && machine < 0)
        return ElementName::Undecided;
    return machine < 0 || (game >= 0 && game < machine) ? ElementName::Game : ElementName::Machine;
}

// Feeds the file from where it stands to `end`, or to its own end.
std::expected<void, Failure> feed(ListxmlConverter& converter, QFile& file, qint64 end, const Watch& watch)
{
    while ((file.isSequential() || file.pos() < end) && !watch.stop.stop_requested()) {
        const std::span<char> room = converter.room(readAtOnce);
        const qint64 wanted = file.isSequential() ? readAtOnce : std::min(readAtOnce, end - file.pos());
        const qint64 count = file.read(room.data(), wanted);
        if (count < 0)
            return std::unexpected(Failure{"convert_not_read", {file.fileName(), file.errorString()}});
        if (count == 0)
            break;
        if (const auto taken = converter.extend(static_cast<std::size_t>(count)); !taken)
            return taken;
        if (watch.progress)
            watch.progress(count);
        if (converter.shouldBeginAgain() && !file.isSequential())
            break;
    }
    return {};
}

std::expected<ConvertedList, Failure> convertWhole(QFile& file, ListxmlConverter& converter,
                                                   const Watch& watch)
{
    if (const auto fed = feed(converter, file, std::numeric_limits<qint64>::max(), watch); !fed)
        return std::unexpected(fed.error());
    return converter.finish();
}

// Nothing where the part cannot stand alone: it failed or was not converted to its end, or it holds what
// concerns the whole text.
std::optional<ConvertedList> convertPart(const QString& path, qint64 from, qint64 end,
                                         ListxmlConverter& converter, const Watch& watch)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered) || !file.seek(from)
        || !feed(converter, file, end, watch) || converter.shouldBeginAgain() || converter.needsRest())
        return std::nullopt;
    auto list = converter.finish();
    const bool standsAlone
        = list && !list->stopped && !converter.shouldBeginAgain() && !converter.needsRest();
    return standsAlone ? std::optional(std::move(*list)) : std::nullopt;
}

// The parts beside each other, a thread each. Nothing where one of them cannot stand alone.
std::optional<ConvertedList> convertParts(const QString& path, const ListxmlParts& parts,
                                          const TitleTable& titles, ConversionOptions options,
                                          const Watch& watch)
{
    std::vector<std::future<std::optional<ConvertedList>>> converted;
    qint64 from = 0;
    for (const qint64 end : parts.ends) {
        converted.push_back(std::async(std::launch::async, [&, from, end] {
            ListxmlConverter converter(titles, options, parts.name);
            return convertPart(path, from, end, converter, watch);
        }));
        from = end;
    }
    std::optional<ConvertedList> whole = converted.front().get();
    for (auto& next : std::span(converted).subspan(1)) {
        std::optional<ConvertedList> part = next.get();
        if (!part || !whole)
            whole.reset();
        else
            whole->append(std::move(*part));
    }
    if (whole && whole->text.size() > convertedSizeLimit)
        whole.reset();
    return whole;
}

} // namespace

QString conversionReport(std::size_t games)
{
    return QString(conversiontexts::finished).arg(games);
}

Failure stopReason(const StoppedAt& stopped)
{
    const bool isCutOff = stopped.why == StoppedAt::Why::CutOff;
    return Failure{isCutOff ? textKey("convert_cut_off") : textKey("convert_too_long"), {stopped.set}};
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

ListxmlParts partsOf(QFile& file, int most)
{
    const qint64 size = file.isSequential() ? 0 : file.size();
    const qint64 count = std::min<qint64>(most, size / smallestPart);
    ListxmlParts parts;
    if (count > 1)
        parts.name = nameIn(probe(file, 0));
    const QByteArray endTag = parts.name == ElementName::Game ? "</game>" : "</machine>";
    for (qint64 i = 1; i < count && parts.name != ElementName::Undecided; ++i) {
        const qint64 from = size / count * i;
        const auto found = probe(file, from).indexOf(endTag);
        if (found >= 0)
            parts.ends.push_back(from + found + endTag.size());
    }
    parts.ends.push_back(size);
    return parts;
}

std::expected<ConvertedList, Failure> convertFile(const QString& listxml, const TitleTable& titles,
                                                  ConversionOptions options, const Watch& watch, int threads)
{
    QFile file(listxml);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return std::unexpected(Failure{"convert_not_read", {listxml, file.errorString()}});
    const auto parts = partsOf(file, std::min(threads, mostParts));
    if (parts.ends.size() > 1) {
        if (auto list = convertParts(listxml, parts, titles, options, watch))
            return std::move(*list);
    }
    // Where the file was looked into, it stands somewhere else now.
    if (!file.isSequential())
        file.seek(0);
    ListxmlConverter converter(titles, options);
    auto converted = convertWhole(file, converter, watch);
    if (!converter.shouldBeginAgain() || file.isSequential() || !file.seek(0))
        return converted;
    ListxmlConverter again(titles, options, ElementName::Game);
    return convertWhole(file, again, watch);
}

std::expected<ConvertedList, Failure> convertFiles(const QString& listxml, const QString& titles,
                                                   ConversionOptions options, const Watch& watch)
{
    const auto table = readTitles(titles);
    if (!table)
        return std::unexpected(table.error());
    return convertFile(listxml, *table, options, watch);
}

} // namespace tessera
