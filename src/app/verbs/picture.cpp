#include "app/verbs/verbs.h"

#include "artwork/picturelookup.h"

namespace tessera {

int runPicture(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption folder(QStringLiteral("folder"), QString(), QStringLiteral("DIR"));
    const QCommandLineOption parent(QStringLiteral("parent"), QString(), QStringLiteral("NAME"));
    const QCommandLineOption noParent(QStringLiteral("no-parent"));
    parser.addOptions({folder, parent, noParent});
    if (const auto status = parseVerb(verb, parser, arguments, 1, 1))
        return *status;
    if (!parser.isSet(folder))
        return badCommandLine(verb, QStringLiteral("--folder is missing."));
    WantedPicture wanted{parser.value(folder), parser.positionalArguments().constFirst(), std::nullopt};
    if (parser.isSet(parent) && !parser.isSet(noParent))
        wanted.parent = parser.value(parent);
    const auto picture = findPicture(wanted);
    if (!picture)
        return failed(Failure{"picture_none", {wanted.folder, wanted.name}});
    print(picture->path);
    return Done;
}

} // namespace tessera
