#include "launch/ui/commandcontroller.h"

#include "catalogue/gameselection.h"
#include "core/failure.h"
#include "launch/archivepath.h"
#include "launch/emulatorchoice.h"
#include "launch/emulatorcommands.h"
#include "launch/emulatortask.h"
#include "launch/ui/commandbar.h"
#include "launch/ui/launchcontroller.h"
#include "launch/ui/pathchooser.h"
#include "launch/ui/runcontroller.h"
#include "platform/desktop.h"
#include "widgets/inputblock.h"

#include <QComboBox>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QPushButton>

namespace tessera {

CommandController::CommandController(const CommandParts& parts, QObject* parent)
    : QObject(parent)
    , m_parts(parts)
{
    const CommandBar& bar = m_parts.bar;
    connect(bar.returnButton, &QPushButton::clicked, this, &CommandController::commandAction);
    connect(bar.exportButton, &QPushButton::clicked, this, &CommandController::exportAction);
    connect(bar.stopButton, &QPushButton::clicked, &m_parts.runs, &RunController::stopProcess);
    leaveOpen(*bar.stopButton);
}

void CommandController::leaveOpen(QObject& stop)
{
    m_open << &stop;
}

void CommandController::commandAction()
{
    CommandBar& bar = m_parts.bar;
    if (m_parts.launches.isRunning())
        return m_parts.desktop.beep();
    if (!m_parts.emulator.findsEmulator()) {
        m_parts.paths.displayAlert1();
        bar.returnButton->setEnabled(true);
        return;
    }
    const QString executable = m_parts.emulator.emulator();
    const QString game = m_parts.selection.selected().name;
    const int position = bar.commandPop->currentIndex();
    const QString title = bar.commandPop->currentText();
    m_parts.task.occupy();
    const auto arguments = commandArguments(
        position, {game, archivePath(m_parts.launches.archiveFolders(), game), executable});
    // Deliberate: the run that is not started stays in its place.
    if (!arguments)
        return m_parts.desktop.beep();
    bar.setBusy(true);
    m_parts.runs.beginLog(commandHeader(position, game, title));
    m_parts.runs.start(
        {QStringLiteral("mame ") + title, executable, QFileInfo(executable).path(), *arguments});
    const bool hasEnded = waitForExit();
    if (hasEnded)
        m_parts.desktop.playSound(QStringLiteral("Pop"));
    m_parts.runs.windowLog();
    bar.setBusy(false);
}

void CommandController::exportAction()
{
    CommandBar& bar = m_parts.bar;
    if (m_parts.launches.isRunning())
        return m_parts.desktop.beep();
    bar.exportButton->setEnabled(false);
    if (!m_parts.emulator.findsEmulator()) {
        m_parts.paths.displayAlert1();
        bar.exportButton->setEnabled(true);
        return;
    }
    const int position = bar.exportPop->currentIndex();
    const ExportRow& row = exportRow(position);
    const QString title = bar.exportPop->currentText();
    const QString proposed = QString::fromLatin1(row.fileName);
    const auto path = m_parts.desktop.savePanel(
        {QString::fromLatin1(row.panelTitle), proposed, {QFileInfo(proposed).suffix()}});
    if (!path) {
        bar.exportButton->setEnabled(true);
        return;
    }
    // Another start of the program may have begun a game while the panel stood.
    if (m_parts.launches.isRunning()) {
        bar.exportButton->setEnabled(true);
        return m_parts.desktop.beep();
    }
    bar.setBusy(true);
    m_parts.runs.beginLog(exportHeader(title));
    const bool isWritable = QFile(*path).open(QIODevice::WriteOnly | QIODevice::Truncate);
    const QString executable = m_parts.emulator.emulator();
    m_parts.runs.start({QStringLiteral("mame ") + title, executable, QFileInfo(executable).path(),
                        exportArguments(position), QString(), isWritable ? *path : QProcess::nullDevice()});
    concludeExport(*path, isWritable, waitForExit());
    bar.setBusy(false);
}

void CommandController::concludeExport(const QString& path, bool isWritable, bool hasEnded)
{
    if (hasEnded)
        m_parts.desktop.playSound(QStringLiteral("Pop"));
    m_parts.runs.windowLog();
    // Deliberate: the log says so whatever the emulator wrote, and wherever it went.
    if (hasEnded)
        m_parts.runs.appendOutput(exportCompleted);
    if (!isWritable)
        Q_EMIT statusMessage(Failure{"command_unwritable", {path}}.text());
}

bool CommandController::waitForExit()
{
    const InputBlock block(m_open);
    return m_parts.task.waitForExit();
}

void CommandController::MiniAudit(int tag)
{
    if (tag == 0)
        return;
    m_parts.bar.commandPop->setCurrentIndex(tag);
    Q_EMIT m_parts.bar.commandPop->activated(tag);
    commandAction();
}

} // namespace tessera
