#include "app/verbs/verbs.h"

#include "catalogue/arrangedlist.h"
#include "catalogue/cataloguepath.h"
#include "catalogue/lookup.h"
#include "catalogue/storereader.h"
#include "core/atomicfile.h"
#include "favourites/favouritespath.h"
#include "platform/trash.h"
#include "tools/favouritesconversion.h"

#include <QDir>
#include <QFileInfo>

#include <cstdio>

namespace tessera {

namespace {

void note(const QString& line)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(line));
}

// By set name, as the window's list is at first, and with nothing hidden.
std::expected<QList<RecordDictionary>, Failure> lookUpIn(const QString& catalogue, const QStringList& names)
{
    const auto stored = readStore(catalogue);
    if (!stored)
        return std::unexpected(stored.error());
    ArrangedList list;
    list.setContent(stored->records);
    const LookupResult result = lookUp(list, Field::Name, names);
    for (const QString& name : result.notFound)
        note(notFoundLine(name));
    return result.found;
}

// As in the window, a backup that fails stops nothing.
std::expected<void, Failure> replace(const QString& favourites, const QList<RecordDictionary>& records)
{
    const auto text = favouritesText(records, favourites);
    if (!text)
        return std::unexpected(text.error());
    if (QFileInfo::exists(favourites)) {
        const auto kept
            = moveToBackup(favourites, favouritesBackup(favourites, QDateTime::currentDateTime()));
        note(kept ? favouritestexts::kept : favouritestexts::notKept);
        if (!kept)
            warn(kept.error());
    }
    QDir().mkpath(QFileInfo(favourites).path());
    return writeAtomically(favourites, *text);
}

} // namespace

int runConvertFavourites(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption catalogue(QStringLiteral("catalogue"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")}, QString(),
                                    QStringLiteral("FILE"));
    const QCommandLineOption keepOld(QStringLiteral("keep-old"));
    parser.addOptions({catalogue, output, keepOld});
    if (const auto status = parseVerb(verb, parser, arguments, 1, 1))
        return *status;

    const QString old = parser.positionalArguments().constFirst();
    if (!QFileInfo::exists(old))
        return missing(favouritestexts::noFile, old);
    const auto names = oldFavourites(old);
    if (!names)
        return failed(names.error());
    const auto found
        = lookUpIn(parser.isSet(catalogue) ? parser.value(catalogue) : standardCataloguePath(), *names);
    if (!found)
        return failed(found.error());
    if (found->isEmpty())
        return refuse(favouritestexts::noData);
    const QString favourites = parser.isSet(output) ? parser.value(output) : standardFavouritesPath();
    if (const auto written = replace(favourites, *found); !written)
        return failed(written.error());
    const bool isReplaced = QFileInfo(old).canonicalFilePath() == QFileInfo(favourites).canonicalFilePath();
    if (!parser.isSet(keepOld) && !isReplaced) {
        if (const auto moved = moveToTrash(old); !moved)
            note(QString(favouritestexts::notTrashed).arg(moved.error()));
    }
    print(favouritestexts::finished);
    return Done;
}

} // namespace tessera
