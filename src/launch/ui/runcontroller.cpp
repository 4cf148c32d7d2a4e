#include "launch/ui/runcontroller.h"

#include "core/atomicfile.h"
#include "launch/emulatortask.h"
#include "launch/failurereason.h"
#include "widgets/logview.h"
#include "launch/ui/logwindow.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"
#include "widgets/bringforward.h"

#include <QCoreApplication>
#include <QPushButton>

#include <array>

namespace tessera {

namespace {
constexpr qsizetype keptForReasons = qsizetype{64} * 1024; // characters
}

RunController::RunController(Desktop& desktop, DefaultsController& defaults, LogWindow& logWindow,
                             EmulatorTask& task, QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_defaults(defaults)
    , m_logWindow(logWindow)
    , m_task(task)
{
    connect(&m_task, &EmulatorTask::started, this, &RunController::taskStarted);
    connect(&m_task, &EmulatorTask::output, this, &RunController::getData);
    connect(&m_task, &EmulatorTask::ended, this, &RunController::taskEnded);
    connect(&m_task, &EmulatorTask::stopped, this, &RunController::taskStopped);
    connect(&m_task, &EmulatorTask::failedToStart, this, &RunController::taskFailedToStart);
    connect(m_logWindow.saveButton, &QPushButton::clicked, this, &RunController::saveLogAction);
}

QString RunController::about(const char* key) const
{
    return qtTrId(key).replace(QStringLiteral("%1"), m_run.name);
}

void RunController::beginLog(const QString& header)
{
    m_logWindow.infomationTextView->replace(header);
    m_logWindow.update();
}

void RunController::start(const EmulatorRun& run)
{
    m_run = run;
    m_printed.clear();
    // How the last one ended is of no interest any more.
    Q_EMIT statusMessage(QString());
    m_task.start(run.executable, run.folder, run.arguments, run.outputFile);
    Q_EMIT runningChanged(true);
}

void RunController::taskStarted()
{
    if (!m_run.game.isEmpty())
        Q_EMIT started(m_run.game);
}

void RunController::getData(const QString& text)
{
    m_printed = QString(m_printed + text).right(keptForReasons);
    appendOutput(text);
}

void RunController::appendOutput(const QString& text)
{
    m_logWindow.infomationTextView->append(text, QColor(m_defaults.text(keys::TableViewTextColor)));
}

void RunController::stopProcess()
{
    if (!m_task.isRunning() || m_task.isEnding())
        return;
    m_task.stop();
    if (!m_task.isEnding())
        return;
    Q_EMIT statusMessage(about(textKey("launch_stopping")));
    Q_EMIT runningChanged(true);
}

// Asked for, so that no status is bad.
void RunController::taskStopped()
{
    Q_EMIT runningChanged(false);
    Q_EMIT statusMessage(about(textKey("launch_stopped")));
}

void RunController::taskEnded(int status)
{
    Q_EMIT runningChanged(false);
    Q_EMIT statusMessage(status == 0
                             ? about(textKey("launch_ended"))
                             : Failure{"launch_endedbadly", {m_run.name, QString::number(status)}}.text());
    if (status != 0 && m_run.outputFile.isEmpty())
        errerAlert(QString::number(status));
}

void RunController::taskFailedToStart(const QString& reason)
{
    const QString text = Failure{"launch_notstarted", {m_run.executable, reason}}.text();
    appendOutput(text + QLatin1Char('\n'));
    Q_EMIT runningChanged(false);
    Q_EMIT statusMessage(text);
}

void RunController::errerAlert(const QString& statusText)
{
    QStringList informative;
    for (const Failure& reason : failureReasons(m_printed))
        informative << reason.text();
    if (!informative.isEmpty())
        informative << QString();
    informative << qtTrId("errerInfo");
    m_desktop.beep();
    const Alert alert{qtTrId("errerAlert") + QLatin1Char(' ') + statusText,
                      informative.join(QLatin1Char('\n')),
                      {QStringLiteral("OK"), QStringLiteral("Log")},
                      Alert::Style::Warning,
                      0};
    if (m_desktop.runAlert(alert) == 1)
        windowLog();
}

void RunController::saveLogAction()
{
    const LogView& log = *m_logWindow.infomationTextView;
    if (log.isEmpty()) {
        m_desktop.beep();
        return;
    }
    // The type code 'TEXT' that belongs to "txt" is no extension.
    const auto path
        = m_desktop.savePanel({qtTrId("log_save"), QStringLiteral("Log output"), {QStringLiteral("txt")}});
    if (!path)
        return;
    // Deliberate: no alert and no beep for a failure; the status line alone says it.
    if (const auto written = writeAtomically(*path, log.text().toUtf8()); !written)
        Q_EMIT statusMessage(written.error().text());
}

void RunController::showLogWindow()
{
    toggle(m_logWindow);
}

void RunController::windowLog()
{
    bringForward(m_logWindow);
}

} // namespace tessera
