#include "app/verbs/verbs.h"

#include "core/atomicfile.h"
#include "tools/printedtext.h"
#include "tools/verification.h"

#include <QFileInfo>

#include <array>

namespace tessera {

namespace {

// Nothing for a key that no verdict has; without any, what the window begins with.
std::optional<ChosenVerdicts> chosenVerdicts(const QStringList& endings)
{
    ChosenVerdicts chosen;
    for (std::size_t i = 0; i < verdicts.size(); ++i)
        chosen[i] = endings.isEmpty() && verdicts[i].key->initial;
    for (const QString& ending : endings) {
        const auto verdict = verdictNamed(ending);
        if (!verdict)
            return std::nullopt;
        chosen.set(*verdict);
    }
    return chosen;
}

QString allEndings()
{
    QStringList endings;
    for (const Verdict& verdict : verdicts)
        endings << QString(verdict.ending());
    return endings.join(QStringLiteral(", "));
}

} // namespace

int runVerify(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption output({QStringLiteral("o"), QStringLiteral("output")}, QString(),
                                    QStringLiteral("REPORT"));
    const QCommandLineOption only(QStringLiteral("only"), QString(), QStringLiteral("KEY"));
    parser.addOptions({output, only});
    if (const auto status = parseVerb(verb, parser, arguments, 1, 1))
        return *status;
    if (!parser.isSet(output))
        return badCommandLine(verb, QStringLiteral("-o REPORT is missing."));
    const auto chosen = chosenVerdicts(parser.values(only));
    if (!chosen)
        return badCommandLine(verb, QStringLiteral("KEY is one of %1.").arg(allEndings()));

    const QString path = parser.positionalArguments().constFirst();
    if (!QFileInfo::exists(path))
        return missing(verificationtexts::noFile, path);
    const auto printed = readPrinted(path);
    if (!printed)
        return failed(printed.error());
    const std::string report = verificationReport(*printed, *chosen);
    if (const auto written = writeAtomically(parser.value(output), report); !written)
        return refuse(QString(verificationtexts::notWritten)
                          .arg(written.error().arguments[0], written.error().arguments[1]));
    print(verificationtexts::saved);
    return Done;
}

} // namespace tessera
