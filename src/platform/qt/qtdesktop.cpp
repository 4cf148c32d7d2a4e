#include "platform/qt/qtdesktop.h"

#include "platform/desktopentry.h"
#include "platform/qt/alertdialog.h"
#include "platform/qt/colordialog.h"
#include "platform/qt/filepanel.h"
#include "platform/qt/windowclosing.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QFileInfo>
#include <QProcess>
#include <QSoundEffect>

#include <syslog.h>

namespace tessera {

namespace {

constexpr int fileManagerTimeout = 2000; // milliseconds; one that does not answer must not hang us

bool showInFileManager(const QString& path)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << QStringList{QUrl::fromLocalFile(path).toString()} << QString();
    const QDBusMessage answer = QDBusConnection::sessionBus().call(call, QDBus::Block, fileManagerTimeout);
    return answer.type() == QDBusMessage::ReplyMessage;
}

} // namespace

QtDesktop::QtDesktop(RecentDocuments& recent)
    : m_recent(recent)
{
}

void QtDesktop::beep()
{
    playSound(QStringLiteral("beep"));
}

void QtDesktop::playSound(const QString& name)
{
    auto& sound = m_sounds[name];
    if (!sound) {
        sound = std::make_shared<QSoundEffect>();
        sound->setSource(QUrl(QStringLiteral("qrc:/sounds/") + name + QStringLiteral(".wav")));
    }
    sound->play();
}

int QtDesktop::runAlert(const Alert& alert)
{
    return AlertDialog(alert, QApplication::activeWindow()).run();
}

std::optional<QString> QtDesktop::openPanel(const OpenRequest& request)
{
    return FilePanel(request, QApplication::activeWindow()).run();
}

std::optional<QString> QtDesktop::savePanel(const SaveRequest& request)
{
    return FilePanel(request, QApplication::activeWindow()).run();
}

std::optional<QString> QtDesktop::colorPanel(const ColorRequest& request)
{
    return ColorDialog(request, QApplication::activeWindow()).run();
}

bool QtDesktop::presentError(const QString& message, const QString& informative,
                             const std::vector<Recovery>& recoveries)
{
    Alert alert{message, informative, {}, Alert::Style::Warning};
    for (const Recovery& recovery : recoveries)
        alert.buttons << recovery.title;
    alert.buttons << QStringLiteral("OK");
    const auto pressed = static_cast<std::size_t>(runAlert(alert));
    return pressed < recoveries.size() && recoveries[pressed].attempt();
}

bool QtDesktop::reveal(const QString& path)
{
    if (!QFileInfo::exists(path))
        return false;
    return showInFileManager(path)
        || QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).absolutePath()));
}

bool QtDesktop::openFolder(const QString& path)
{
    return QFileInfo(path).isDir() && QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

bool QtDesktop::openWith(const QString& path, const QString& application)
{
    std::optional<QStringList> command(QStringList{application, path});
    if (application.endsWith(QLatin1String(".desktop"))) {
        QFile entry(application);
        command = entry.open(QIODevice::ReadOnly) ? desktopEntryCommand(entry.readAll(), path) : std::nullopt;
    }
    return command && QProcess::startDetached(command->constFirst(), command->mid(1), QFileInfo(path).path());
}

bool QtDesktop::openUrl(const QUrl& url)
{
    return QDesktopServices::openUrl(url);
}

bool QtDesktop::askToClose(qint64 process)
{
    return askWindowsToClose(static_cast<pid_t>(process));
}

void QtDesktop::noteRecent(const QString& path)
{
    m_recent.note(path);
}

void QtDesktop::log(const QString& line)
{
    syslog(LOG_USER | LOG_INFO, "%s", qUtf8Printable(line));
}

QDateTime QtDesktop::now() const
{
    return QDateTime::currentDateTime();
}

} // namespace tessera
