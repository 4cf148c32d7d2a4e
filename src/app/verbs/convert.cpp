#include "app/verbs/verbs.h"

#include "tools/conversion.h"

#include <QFileInfo>

namespace tessera {

int runConvert(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")}, QString(),
                                    QStringLiteral("FILE"));
    const QCommandLineOption withoutBios(QStringLiteral("without-bios"));
    const QCommandLineOption withoutMechanical(QStringLiteral("without-mechanical"));
    const QCommandLineOption withoutDevices(QStringLiteral("without-devices"));
    parser.addOptions({output, withoutBios, withoutMechanical, withoutDevices});
    if (const auto status = parseVerb(verb, parser, arguments, 2, 2))
        return *status;
    if (!parser.isSet(output))
        return badCommandLine(verb, QStringLiteral("-o FILE is missing."));

    const QStringList files = parser.positionalArguments();
    if (!QFileInfo::exists(files[0]))
        return missing(conversiontexts::noListxml, files[0]);
    if (!QFileInfo::exists(files[1]))
        return missing(conversiontexts::noTitles, files[1]);
    const ConversionOptions options{parser.isSet(withoutBios), parser.isSet(withoutMechanical),
                                    parser.isSet(withoutDevices)};
    const auto converted = convertFiles(files[0], files[1], options);
    if (!converted)
        return failed(converted.error());
    if (const auto written = converted->text.save(parser.value(output)); !written)
        return refuse(QString(conversiontexts::notWritten)
                          .arg(written.error().arguments[0], written.error().arguments[1]));
    print(conversionReport(converted->games));
    // The file holds what came before, and nobody takes it for the whole.
    if (const auto& stopped = converted->stopped)
        return failed(stopReason(*stopped));
    return Done;
}

} // namespace tessera
