#include "launch/ui/launchcontroller.h"

#include "core/failure.h"
#include "launch/aliasfile.h"
#include "launch/argumentsarray.h"
#include "launch/commandline.h"
#include "launch/emulatorchoice.h"
#include "launch/emulatortask.h"
#include "launch/osxapplication.h"
#include "launch/profilecache.h"
#include "launch/ui/launchpages.h"
#include "launch/ui/pathchooser.h"
#include "launch/ui/runcontroller.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"
#include "widgets/inputblock.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace tessera {

LaunchController::LaunchController(LaunchParts parts, QObject* parent)
    : QObject(parent)
    , m_parts(std::move(parts))
{
    connect(&m_parts.runs, &RunController::runningChanged, this, &LaunchController::runningChanged);
    // After the runs have told the end.
    connect(&m_parts.task, &EmulatorTask::stopped, this, &LaunchController::launchNext);
    connect(&m_parts.profiles, &ProfileCache::answered, this, &LaunchController::profileAnswered);
    connect(&m_parts.emulator, &EmulatorChoice::modeChanged, this, &LaunchController::LaunchemuPopAction);
}

QString LaunchController::aboutGame(const char* key) const
{
    return qtTrId(key).replace(QStringLiteral("%1"), m_name);
}

bool LaunchController::isRunning() const
{
    return m_waiting || m_parts.task.isRunning();
}

QString LaunchController::runningText() const
{
    const char* key = m_parts.task.isEnding() ? textKey("launch_stopping") : textKey("launch_running");
    return m_waiting ? aboutGame(key) : m_parts.runs.about(key);
}

bool LaunchController::romsfolder_FoundCheck() const
{
    return options().romsFolderFound;
}

// Empty where the emulator is left to its own.
QString LaunchController::usedRomFolder() const
{
    const ArchiveFolders folders = archiveFolders();
    return folders.usesRomFolder && romsfolder_FoundCheck() ? folders.romFolder : QString();
}

ArchiveFolders LaunchController::archiveFolders() const
{
    const LaunchOptions now = options();
    return {now.checkboxRompath != 0, now.romsTextField, m_parts.emulator.emulator()};
}

void LaunchController::prepareProfile()
{
    m_parts.profiles.request(m_parts.emulator.emulator());
}

void LaunchController::Launchusing(const QString& game)
{
    // Only another start of the program can ask for a game while a command is waited for.
    if (m_parts.task.isWaitedFor())
        return m_parts.desktop.beep();
    m_next.reset();
    stopProcess();
    if (m_parts.task.isRunning())
        m_next = game;
    else
        launch(game);
}

void LaunchController::launchNext()
{
    if (const auto next = std::exchange(m_next, std::nullopt))
        launch(*next);
}

void LaunchController::launch(const QString& game)
{
    LaunchemuCheck();
    // Another start of the program may have begun a game while the alert stood.
    if (isRunning())
        return Launchusing(game);
    m_name = gameName(game);
    m_parts.runs.beginLog(m_parts.emulator.modeTitle() + QStringLiteral(" :  ") + m_name
                          + QStringLiteral("  Launch...\n\n"));
    switch (m_parts.emulator.mode()) {
    case EmulatorChoice::CommandLineMame:
        return LaunchTask_SDLMAME(game);
    case EmulatorChoice::MameOsx:
        return LaunchTask_MAMEOSX(game);
    case EmulatorChoice::OtherApplication:
        return LaunchTask_APPMAME(game);
    default:
        return;
    }
}

// Deliberate: of the game list's selection, whatever is launched; a recording is named after it.
LaunchOptions LaunchController::options() const
{
    return m_parts.pages.options(m_parts.selection.selected());
}

LaunchController::Launch LaunchController::launchOf(const QString& game) const
{
    return {m_parts.emulator.emulator(), game, argumentsArray(options()),
            ownOptions(m_parts.search_priorityOption(game))};
}

ShownLine LaunchController::shownLine(const QString& game)
{
    ShownLine shown;
    const auto mode = m_parts.emulator.mode();
    if (mode == EmulatorChoice::OtherApplication) {
        const auto archive = userDataArchive(QDir::homePath(), game);
        shown.executable = m_parts.defaults.text(keys::ApplicationPath);
        shown.line.arguments << archive.value_or(game);
    } else if (mode == EmulatorChoice::MameOsx) {
        shown.executable = bundleExecutable(m_parts.defaults.text(keys::MameosxPath));
        shown.line.arguments = osxGameArguments(game, usedRomFolder()) + osxOptions();
    } else {
        const Launch launch = launchOf(game);
        const auto answer = m_parts.profiles.remembered(launch.executable);
        shown.executable = launch.executable;
        shown.line = commandLine(answer ? answer->profile : std::nullopt, game, launch.built, launch.own,
                                 QFileInfo(launch.executable).path());
    }
    // Where none is selected there is no game to name; what is empty besides is sent so.
    if (game.isEmpty())
        shown.line.arguments.removeOne(QString());
    return shown;
}

QString LaunchController::shownCommandLine(const QString& game)
{
    const ShownLine shown = shownLine(game);
    return shellWords(QStringList{shown.executable} + shown.line.arguments);
}

QStringList LaunchController::shellOptions()
{
    const QStringList built = argumentsArray(options());
    const auto answer = m_parts.profiles.remembered(m_parts.emulator.emulator());
    return answer && answer->profile ? answer->profile->fit(built, EmulatorProfile::Quotes::Kept).arguments
                                     : built;
}

QStringList LaunchController::osxOptions() const
{
    return argumentsArray2(options());
}

void LaunchController::runGame(const QString& game)
{
    if (game.isEmpty())
        m_parts.desktop.beep();
    else
        Launchusing(game);
}

void LaunchController::LaunchTask_SDLMAME(const QString& game)
{
    noteRecent(game);
    m_waiting = launchOf(game);
    if (const auto answer = m_parts.profiles.remembered(m_waiting->executable))
        profileAnswered(m_waiting->executable, *answer);
    else
        m_parts.profiles.request(m_waiting->executable);
    if (m_waiting)
        Q_EMIT runningChanged(true);
}

void LaunchController::noteRecent(const QString& game)
{
    m_parts.paths.saveOpenRecent(QDir::isAbsolutePath(game) ? game : archivePath(archiveFolders(), game));
}

void LaunchController::LaunchTask_MAMEOSX(const QString& game)
{
    const QString used = usedRomFolder();
    const auto folder = used.isEmpty() ? osxRomPath(QDir::homePath()) : used;
    if (QDir::isAbsolutePath(game))
        m_parts.paths.saveOpenRecent(game);
    else if (folder)
        m_parts.paths.saveOpenRecent(*folder + QLatin1Char('/') + game + QStringLiteral(".zip"));
    const QString application = QDir::cleanPath(m_parts.defaults.text(keys::MameosxPath));
    m_parts.runs.start({m_name, bundleExecutable(application), QFileInfo(application).path(),
                        osxGameArguments(game, used) + osxOptions(), game});
}

// Deliberate: an archive of any place is looked for by its bare name among the user data.
void LaunchController::LaunchTask_APPMAME(const QString& game)
{
    const auto archive = userDataArchive(QDir::homePath(), gameName(game));
    if (!archive)
        return m_parts.paths.displayAlert4();
    m_parts.paths.saveOpenRecent(*archive);
    const QString application = m_parts.defaults.text(keys::ApplicationPath);
    if (m_parts.desktop.openWith(*archive, application))
        Q_EMIT handedOver(gameName(game));
    else
        Q_EMIT statusMessage(Failure{"launch_notopened", {*archive, application}}.text());
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
    const CommandLine line = commandLine(answer.profile, launch.game, launch.built, launch.own,
                                         QFileInfo(launch.executable).path());
    if (!line.leftOut.isEmpty())
        m_parts.runs.appendOutput(line.leftOutLine() + QLatin1Char('\n'));
    m_parts.runs.start({gameName(launch.game), launch.executable, QFileInfo(launch.executable).path(),
                        line.arguments, launch.game});
}

void LaunchController::LaunchemuCheck()
{
    const auto isMissing
        = [this](const ChosenKey& key) { return !QFileInfo::exists(m_parts.defaults.text(key)); };
    const auto mode = m_parts.emulator.mode();
    if (mode == EmulatorChoice::CommandLineMame && !m_parts.emulator.findsEmulator())
        m_parts.paths.displayAlert1();
    else if (mode == EmulatorChoice::MameOsx && isMissing(keys::MameosxPath))
        m_parts.paths.displayAlert2();
    else if (mode == EmulatorChoice::OtherApplication && isMissing(keys::ApplicationPath))
        m_parts.paths.displayAlert3();
}

void LaunchController::LaunchemuPopAction()
{
    Q_EMIT launchModeChanged(m_parts.emulator.modeTitle());
}

void LaunchController::MenuLaunchusing(const QString& title)
{
    m_parts.emulator.setMode(title);
}

void LaunchController::stopProcess()
{
    if (const auto next = std::exchange(m_next, std::nullopt))
        Q_EMIT statusMessage(qtTrId("launch_given_up").arg(gameName(*next)));
    if (!m_waiting)
        return m_parts.runs.stopProcess();
    m_waiting.reset();
    Q_EMIT statusMessage(aboutGame(textKey("launch_stopped")));
    Q_EMIT runningChanged(false);
}

bool LaunchController::confirmQuit()
{
    // A command is waited for; it has a Stop of its own.
    if (m_parts.task.isWaitedFor()) {
        m_parts.desktop.beep();
        return false;
    }
    // What ends already is no question, and what is to follow it has not begun.
    if (!isRunning() || m_parts.task.isEnding())
        return true;
    const Alert alert{aboutGame(textKey("launch_quitmessage")),
                      qtTrId("launch_quitinfo"),
                      {qtTrId("launch_quitend"), qtTrId("cancel")},
                      Alert::Style::Warning};
    m_parts.desktop.beep();
    return m_parts.desktop.runAlert(alert) == 0;
}

void LaunchController::stopAndWait()
{
    stopProcess();
    if (!m_parts.task.isRunning())
        return;
    const InputBlock block({});
    m_parts.task.waitForExit();
}

} // namespace tessera
