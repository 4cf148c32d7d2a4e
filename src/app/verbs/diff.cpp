#include "app/verbs/verbs.h"

#include "catalogue/storereader.h"
#include "favourites/favouritekey.h"
#include "favourites/listitems.h"
#include "tools/cataloguecomparison.h"

namespace tessera {

namespace {

std::expected<QStringList, Failure> favouriteNames(const QString& path)
{
    const auto items = readListItems(path);
    if (!items)
        return std::unexpected(items.error());
    QStringList names;
    for (const PropertyList& entry : *items) {
        if (entry.kind() == PropertyList::Kind::Dictionary)
            names << entry.text(keyName(FavouriteKey::Name)).value_or(QString());
    }
    return names;
}

} // namespace

int runDiff(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption favouritesOption(QStringLiteral("favourites"), QString(),
                                              QStringLiteral("FILE"));
    parser.addOption(favouritesOption);
    if (const auto status = parseVerb(verb, parser, arguments, 2, 2))
        return *status;
    QStringList favourites;
    if (parser.isSet(favouritesOption)) {
        const auto names = favouriteNames(parser.value(favouritesOption));
        if (!names)
            return failed(names.error());
        favourites = *names;
    }
    const auto before = readStore(parser.positionalArguments()[0]);
    if (!before)
        return failed(before.error());
    const auto after = readStore(parser.positionalArguments()[1]);
    if (!after)
        return failed(after.error());
    const CatalogueComparison comparison = compareCatalogues(before->records, after->records, favourites);
    print(comparisonSummary(comparison));
    if (!comparison.changes.empty())
        print(QLatin1Char('\n') + comparisonText(comparison).chopped(1));
    return Done;
}

} // namespace tessera
