#include "app/verbs/verbs.h"

#include "core/atomicfile.h"
#include "tools/existence.h"

#include <QFileInfo>

#include <array>

namespace tessera {

int runExistence(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")}, QString(),
                                    QStringLiteral("REPORT"));
    parser.addOption(output);
    if (const auto status = parseVerb(verb, parser, arguments, 2, 2))
        return *status;
    if (!parser.isSet(output))
        return badCommandLine(verb, QStringLiteral("-o REPORT is missing."));

    const QStringList paths = parser.positionalArguments();
    if (!QFileInfo::exists(paths[0]))
        return missing(existencetexts::noListfull, paths[0]);
    if (!QFileInfo::exists(paths[1]))
        return missing(existencetexts::noRoms, paths[1]);
    const auto list = checkExistence(paths[0], paths[1]);
    if (!list)
        return failed(list.error());
    const std::string report = existenceReport(list->rows, list->found, list->notFound);
    if (const auto written = writeAtomically(parser.value(output), report); !written)
        return failed(written.error());
    print(existenceSummary(list->rows.size(), list->found, list->notFound));
    return Done;
}

} // namespace tessera
