#pragma once

#include "launch/argumentsarray.h"
#include "launch/emulatorchoice.h"
#include "launch/emulatortask.h"
#include "launch/profilecache.h"
#include "launch/ui/launchcontroller.h"
#include "launch/ui/generalpage.h"
#include "launch/ui/launchpages.h"
#include "widgets/logview.h"
#include "launch/ui/logwindow.h"
#include "launch/ui/pathchooser.h"
#include "launch/ui/runcontroller.h"
#include "platform/defaultscontroller.h"
#include "support/chosengame.h"
#include "support/scripteddesktop.h"

#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <functional>

namespace tessera::test {

/// Everything around a launch; "mame" in `folder` plays the emulator.
struct Room {
    QTemporaryDir folder;
    UserDefaults settings{folder.filePath(QStringLiteral("Tessera.ini"))};
    DefaultsController defaults{settings};
    ScriptedDesktop desktop;
    QString installed; ///< what is found where no emulator was chosen
    std::function<QString()> find = [this] { return installed; }; ///< how that is looked for
    EmulatorChoice choice{begun(), [this] { return find(); }};
    PathChooser chooser{desktop, defaults, choice};
    LaunchPages pages{defaults, choice, chooser};
    LogWindow log;
    EmulatorTask task;
    ProfileCache profiles{folder.filePath(QStringLiteral("profiles"))};
    QHash<QString, QString> favourites;
    ChosenGame selected{SelectedGame{QStringLiteral("sel"), QStringLiteral("Title"), QStringLiteral("題")}};
    RunController runs{desktop, defaults, log, task};
    LaunchController controller{LaunchParts{desktop, defaults, choice, pages, chooser, task, runs, profiles,
                                            selected,
                                            [this](const QString& name) { return favourites.value(name); }}};
    QSignalSpy running{&controller, &LaunchController::runningChanged};

    explicit Room(const Patience& patience = {std::chrono::milliseconds(200), std::chrono::milliseconds(200)})
        : task(desktop, patience)
    {
    }

    QString emulator() const { return folder.filePath(QStringLiteral("mame")); }
    QString text() const { return log.infomationTextView->text(); }

    bool launch(const QString& game)
    {
        controller.Launchusing(game);
        return waitForEnd();
    }
    bool waitForEnd()
    {
        return QTest::qWaitFor([this] { return !running.isEmpty() && !running.last().first().toBool(); },
                               20000);
    }
    bool stop()
    {
        controller.stopProcess();
        return QTest::qWaitFor([this] { return !controller.isRunning(); }, 20000);
    }
    /// What runs now.
    pid_t process() const { return static_cast<pid_t>(task.findChild<QProcess*>()->processId()); }
    bool waitForText(const QString& wanted)
    {
        return QTest::qWaitFor([&] { return text().contains(wanted); }, 20000);
    }

    /// The arguments that the "print" game shows, itself included.
    QStringList allPrinted() const
    {
        QStringList list;
        for (const QString& line : text().split(QLatin1Char('\n'))) {
            if (line.startsWith(QLatin1Char('[')))
                list << line.mid(1, line.size() - 2);
        }
        return list;
    }
    QStringList printed() const { return allPrinted().mid(1); }

    QStringList built() const
    {
        return argumentsArray(
            pages.options({QStringLiteral("sel"), QStringLiteral("Title"), QStringLiteral("題")}));
    }

private:
    // The settings before anything is bound to them.
    DefaultsController& begun()
    {
        defaults.setInitialValues(QStringLiteral("Sans"), QStringLiteral("/home/me"));
        if (!QFile::link(QStringLiteral(TESSERA_FAKEEMULATOR), emulator()))
            qFatal("no emulator");
        defaults.setText(keys::ExecutionPath, emulator());
        return defaults;
    }
};

} // namespace tessera::test
