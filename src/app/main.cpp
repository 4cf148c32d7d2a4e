#include "app/tessera_appdelegate.h"
#include "app/verbs.h"
#include "platform/qt/qtdesktop.h"
#include "platform/qt/singleinstance.h"
#include "widgets/theme.h"

#include <QApplication>
#include <QFileInfo>
#include <QLocale>
#include <QTranslator>

#include <cerrno>
#include <cstdio>
#include <cstring>

namespace {

// Japanese where the user's language is Japanese, English elsewhere.
void installTexts(QTranslator& translator)
{
    const bool japanese = QLocale().language() == QLocale::Japanese;
    if (translator.load(japanese ? QStringLiteral(":/texts/tessera_ja.qm")
                                 : QStringLiteral(":/texts/tessera_en.qm")))
        QCoreApplication::installTranslator(&translator);
}

int runWindows(QApplication& application, const QString& file)
{
    using namespace tessera;
    SingleInstance instance;
    if (instance.handOver(file))
        return Done;
    instance.listen();

    UserDefaults defaults(UserDefaults::standardPath());
    RecentDocuments recent(defaults);
    QtDesktop desktop(recent);
    theme::apply(application);
    Tessera_AppDelegate delegate(desktop, defaults, recent, standardCataloguePath());
    QObject::connect(&instance, &SingleInstance::handedOver, &delegate, &Tessera_AppDelegate::comeForward);
    delegate.run(file);
    return application.exec();
}

int runVerb(const tessera::Verb& verb, int argc, char* argv[])
{
    QCoreApplication application(argc, argv);
    QTranslator texts;
    installTexts(texts);
    const int status = verb.run(verb, application.arguments().mid(1));
    // What was printed may still wait in a buffer for a disk that is full.
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0)
        return status;
    return tessera::failed(tessera::Failure{
        "failure_write", {QStringLiteral("stdout"), QString::fromLocal8Bit(std::strerror(errno))}});
}

} // namespace

int main(int argc, char* argv[])
{
    using namespace tessera;
    QCoreApplication::setApplicationName(QStringLiteral("Tessera"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TESSERA_VERSION));

    const QString first = argc > 1 ? QString::fromLocal8Bit(argv[1]) : QString();
    if (const Verb* verb = verbNamed(first))
        return runVerb(*verb, argc, argv);
    if (first == QStringLiteral("--help") || first == QStringLiteral("-h")) {
        print(overview());
        return Done;
    }
    if (first == QStringLiteral("--version")) {
        print(QStringLiteral("Tessera " TESSERA_VERSION));
        return Done;
    }

    QApplication application(argc, argv);
    QTranslator texts;
    installTexts(texts);
    const QString file = application.arguments().value(1);
    if (file.startsWith(QLatin1Char('-')) || application.arguments().size() > 2) {
        std::fputs(qUtf8Printable(overview() + QLatin1Char('\n')), stderr);
        return BadCommandLine;
    }
    return runWindows(application, file.isEmpty() ? file : QFileInfo(file).absoluteFilePath());
}
