#include "core/texts.h"
#include "app/verbs/completion.h"
#include "app/verbs/manpage.h"
#include "app/verbs/verbs.h"
#include "core/settingskeys.h"
#include "platform/userdefaults.h"

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

// What was printed may still wait in a buffer for a disk that is full.
int flushed(int status)
{
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return status;
    return tessera::failed(tessera::Failure{
        "failure_write", {QStringLiteral("stdout"), QString::fromLocal8Bit(std::strerror(errno))}});
}

} // namespace

int main(int argc, char* argv[])
{
    using namespace tessera;
    QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("Tessera"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TESSERA_VERSION));
    QTranslator texts;
    const UserDefaults stored(UserDefaults::standardPath());
    installTexts(texts, stored.string(keys::Language.name));

    const QStringList arguments = application.arguments().mid(1);
    const QString first = arguments.value(0);
    if (const Verb* verb = verbNamed(first))
        return flushed(verb->run(*verb, arguments));
    if (first == QStringLiteral("--version")) {
        print(QStringLiteral("Tessera " TESSERA_VERSION));
        return flushed(Done);
    }
    if (first == QStringLiteral("--help") || first == QStringLiteral("-h")) {
        print(overview());
        return flushed(Done);
    }
    // These two are for packages and shells, and are named in no help.
    if (first == QStringLiteral("--man")) {
        print(manPage(QStringLiteral(TESSERA_VERSION)).trimmed());
        return flushed(Done);
    }
    if (first == QStringLiteral("--complete")) {
        for (const QString& word : completions(arguments.mid(1)))
            print(word);
        return flushed(Done);
    }
    std::fputs("Usage: tessera [FILE], or tessera VERB ...\n\"tessera --help\" tells more.\n", stderr);
    return BadCommandLine;
}
