#include "launch/ui/launchcontroller.h"

#include "core/atomicfile.h"
#include "launch/argumentsarray.h"
#include "launch/commandline.h"
#include "launch/emulatortask.h"
#include "launch/profilecache.h"
#include "launch/storedoptions.h"
#include "launch/ui/generalpage.h"
#include "launch/ui/launchpages.h"
#include "launch/ui/logview.h"
#include "launch/ui/logwindow.h"
#include "launch/ui/pathchooser.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"
#include "widgets/bringforward.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>

#include <array>

namespace tessera {

LaunchController::LaunchController(LaunchParts parts, QObject* parent)
    : QObject(parent)
    , m_parts(std::move(parts))
{
    connect(&m_parts.task, &EmulatorTask::output, this, &LaunchController::getData);
    connect(&m_parts.task, &EmulatorTask::ended, this, &LaunchController::taskEnded);
    connect(&m_parts.task, &EmulatorTask::failedToStart, this, &LaunchController::taskFailedToStart);
    connect(&m_parts.profiles, &ProfileCache::answered, this, &LaunchController::profileAnswered);
    connect(m_parts.logWindow.saveButton, &QPushButton::clicked, this, &LaunchController::saveLogAction);
    // The position has to be stored before the title is asked for, so this comes after the pop-up's own
    // binding.
    connect(m_parts.pages.general().launchusingPop, &QComboBox::activated, this,
            &LaunchController::LaunchemuPopAction);
}

QString LaunchController::executable() const
{
    const QString typed = m_parts.pages.general().exeTextField->text();
    return typed.isEmpty() ? m_parts.pages.general().emulator() : typed;
}

QString LaunchController::aboutGame(const char* key) const
{
    return qtTrId(key).replace(QStringLiteral("%1"), m_name);
}

bool LaunchController::isRunning() const
{
    return m_waiting || m_parts.task.isRunning();
}

bool LaunchController::romsfolder_FoundCheck() const
{
    return romsFolderExists(m_parts.pages.general().romsTextField->text());
}

void LaunchController::prepareProfile()
{
    m_parts.profiles.request(executable());
}

void LaunchController::Launchusing(const QString& game)
{
    if (isRunning())
        stopProcess();
    LaunchemuCheck();
    m_name = gameName(game);
    const QComboBox* mode = m_parts.pages.general().launchusingPop;
    m_parts.logWindow.infomationTextView->replace(mode->currentText() + QStringLiteral(" :  ") + m_name
                                                  + QStringLiteral("  Launch...\n\n"));
    m_parts.logWindow.update();
    if (mode->currentIndex() == 0)
        LaunchTask_SDLMAME(game);
}

void LaunchController::LaunchTask_SDLMAME(const QString& game)
{
    const SelectionReaders& selection = m_parts.selection;
    const LaunchOptions options
        = liveOptions(m_parts.pages,
                      {selection.tableViewSelectionROM(), selection.tableViewSelectionTitleE(),
                       selection.tableViewSelectionTitleJ()});
    noteRecent(game);
    m_waiting = Launch{executable(), game, argumentsArray(options),
                       ownOptions(m_parts.search_priorityOption(game))};
    if (const auto answer = m_parts.profiles.remembered(m_waiting->executable))
        profileAnswered(m_waiting->executable, *answer);
    else
        m_parts.profiles.request(m_waiting->executable);
    Q_EMIT runningChanged(isRunning());
}

void LaunchController::noteRecent(const QString& game)
{
    const GeneralPage& general = m_parts.pages.general();
    const QString format = QStringLiteral("%1/%2.zip");
    if (QDir::isAbsolutePath(game))
        m_parts.paths.saveOpenRecent(game);
    else if (general.checkboxRompath->checkState() != Qt::Unchecked && romsfolder_FoundCheck())
        m_parts.paths.saveOpenRecent(format.arg(general.romsTextField->text(), game));
    else
        m_parts.paths.saveOpenRecent(
            format.arg(QFileInfo(executable()).path() + QStringLiteral("/roms"), game));
}

void LaunchController::profileAnswered(const QString& executable, const ProfileAnswer& answer)
{
    if (!m_waiting || m_waiting->executable != executable)
        return;
    const auto launch = std::move(*m_waiting);
    m_waiting.reset();
    begin(launch, answer);
}

void LaunchController::begin(const Launch& launch, const ProfileAnswer& answer)
{
    const CommandLine line = commandLine(answer.profile, launch.game, launch.built, launch.own);
    if (!line.leftOut.isEmpty())
        appendOutput(line.leftOutLine() + QLatin1Char('\n'));
    Q_EMIT statusMessage(aboutGame(textKey("launch_running")));
    m_parts.task.start(launch.executable, QFileInfo(launch.executable).path(), line.arguments);
}

void LaunchController::LaunchemuCheck()
{
    GeneralPage& general = m_parts.pages.general();
    if (general.launchusingPop->currentIndex() != 0)
        return;
    general.lookForEmulator();
    if (!QFileInfo::exists(executable()))
        m_parts.paths.displayAlert1();
}

void LaunchController::LaunchemuPopAction()
{
    Q_EMIT launchModeChanged();
}

void LaunchController::getData(const QString& text)
{
    appendOutput(text);
}

void LaunchController::appendOutput(const QString& text)
{
    m_parts.logWindow.infomationTextView->append(text,
                                                 QColor(m_parts.defaults.text(keys::TableViewTextColor)));
}

void LaunchController::stopProcess()
{
    const bool wasRunning = isRunning();
    m_waiting.reset();
    m_parts.task.stop();
    if (!wasRunning)
        return;
    Q_EMIT statusMessage(aboutGame(textKey("launch_stopped")));
    Q_EMIT runningChanged(false);
}

void LaunchController::taskEnded(int status)
{
    Q_EMIT runningChanged(false);
    Q_EMIT statusMessage(status == 0
                             ? aboutGame(textKey("launch_ended"))
                             : Failure{"launch_endedbadly", {m_name, QString::number(status)}}.text());
    if (status != 0)
        errerAlert(QString::number(status));
}

void LaunchController::taskFailedToStart(const QString& reason)
{
    const QString text = Failure{"launch_notstarted", {executable(), reason}}.text();
    appendOutput(text + QLatin1Char('\n'));
    Q_EMIT runningChanged(false);
    Q_EMIT statusMessage(text);
}

void LaunchController::errerAlert(const QString& statusText)
{
    m_parts.desktop.beep();
    const Alert alert{qtTrId("errerAlert") + QLatin1Char(' ') + statusText,
                      qtTrId("errerInfo"),
                      {QStringLiteral("OK"), QStringLiteral("Log")},
                      Alert::Style::Warning,
                      0};
    if (m_parts.desktop.runAlert(alert) == 1)
        windowLog();
}

bool LaunchController::confirmQuit()
{
    if (!isRunning())
        return true;
    const Alert alert{aboutGame(textKey("launch_quitmessage")),
                      qtTrId("launch_quitinfo"),
                      {qtTrId("launch_quitend"), qtTrId("cancel")},
                      Alert::Style::Warning};
    m_parts.desktop.beep();
    return m_parts.desktop.runAlert(alert) == 0;
}

void LaunchController::saveLogAction()
{
    const LogView& log = *m_parts.logWindow.infomationTextView;
    if (log.isEmpty()) {
        m_parts.desktop.beep();
        return;
    }
    // The type code 'TEXT' that belongs to "txt" is no extension.
    const auto path = m_parts.desktop.savePanel(
        {qtTrId("log_save"), QStringLiteral("Log output"), {QStringLiteral("txt")}});
    if (!path)
        return;
    const std::string text = log.text().toStdString();
    const std::array<std::string_view, 1> pieces{text};
    // Deliberate: no alert and no beep for a failure; the status line alone says it.
    if (const auto written = writeAtomically(*path, pieces); !written)
        Q_EMIT statusMessage(written.error().text());
}

void LaunchController::showLogWindow()
{
    if (m_parts.logWindow.isVisible())
        m_parts.logWindow.close();
    else
        windowLog();
}

void LaunchController::windowLog()
{
    bringForward(m_parts.logWindow);
}

} // namespace tessera
