#include "app/program.h"
#include "app/tessera_appdelegate.h"
#include "core/texts.h"
#include "catalogue/cataloguepath.h"
#include "platform/qt/qtdesktop.h"
#include "platform/qt/sessionend.h"
#include "platform/qt/singleinstance.h"
#include "widgets/firstpaint.h"
#include "widgets/theme.h"

#include <QApplication>
#include <QFileInfo>

#include <cstdio>

using namespace tessera;

namespace {

int runWindows(QApplication& application, UserDefaults& stored, const QString& file)
{
    SingleInstance instance;
    if (instance.handOver(file))
        return 0;
    instance.listen();

    DefaultsController defaults(stored);
    RecentDocuments recent(defaults);
    QtDesktop desktop(recent);
    theme::apply(application);
    Tessera_AppDelegate delegate(desktop, defaults, recent, standardCataloguePath());
    QObject::connect(&instance, &SingleInstance::handedOver, &delegate, &Tessera_AppDelegate::comeForward);
    QObject::connect(&delegate, &Tessera_AppDelegate::everythingIsSaved, &instance,
                     &SingleInstance::stopListening);
    const SessionEnd sessionEnd;
    QObject::connect(&sessionEnd, &SessionEnd::mayEnd, &delegate, &Tessera_AppDelegate::saveForSessionEnd);
    QObject::connect(&sessionEnd, &SessionEnd::ended, &delegate, &Tessera_AppDelegate::endWithSession);
    if (!delegate.run(file))
        return 0;
    // Drawing it in all its sizes is nothing that the list has to wait for.
    QObject::connect(new FirstPaint(delegate.program().mainWindow), &FirstPaint::passed, &application,
                     [] { QGuiApplication::setWindowIcon(theme::mark(QStringLiteral("tessera"))); });
    return application.exec();
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("Tessera"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TESSERA_VERSION));
    QGuiApplication::setDesktopFileName(QStringLiteral(TESSERA_APP_ID));
    QApplication application(argc, argv);
    QTranslator texts;
    UserDefaults defaults(UserDefaults::standardPath());
    installTexts(texts, defaults.string(keys::Language.name));
    QTranslator toolkit;
    installToolkitTexts(toolkit, defaults.string(keys::Language.name));
    const QString file = application.arguments().value(1);
    if (file.startsWith(QLatin1Char('-')) || application.arguments().size() > 2) {
        std::fputs("Usage: tessera [FILE]\n\"tessera --help\" tells more.\n", stderr);
        return 2;
    }
    return runWindows(application, defaults, file.isEmpty() ? file : QFileInfo(file).absoluteFilePath());
}
