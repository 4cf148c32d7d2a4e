#pragma once

#include "platform/defaultscontroller.h"
#include "support/scripteddesktop.h"
#include "support/testmain.h"
#include "tools/ui/utilityfoot.h"
#include "tools/ui/utilityhost.h"
#include "tools/ui/utilityobject.h"
#include "tools/ui/utilitywindow.h"

#include <QDir>
#include <QFile>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTemporaryDir>

namespace tessera::test {

/// What the rest of the program would answer to the tools, and what it was told.
struct ScriptedRooms : UtilityHost {
    QStringList games; ///< the list's set names, as they are shown
    std::size_t hidden = 0;
    QString favourites; ///< the path of their file
    QString emulatorToAsk; ///< its path
    QString scriptFolder; ///< in which the ones are that scripts start
    QString roms; ///< their folder
    SelectedGame selected{QStringLiteral("pong"), QStringLiteral("Pong"), QString::fromUtf8("ポン"), {}};
    std::optional<QString> changes; ///< what differs from the catalogue before
    std::expected<QString, Failure> unsaved; ///< where it is kept
    QStringList told;

    SelectedGame selectedGame() const override { return selected; }
    QList<RecordDictionary> search_arrangedObjects(const QStringList& names) override
    {
        QList<RecordDictionary> found;
        for (const QString& name : names) {
            if (games.contains(name))
                found << record(name);
        }
        return found;
    }
    std::size_t hiddenRecords() const override { return hidden; }
    void showAllRecords() override { told << QStringLiteral("show all"); }
    bool openGame(const QString& name) override
    {
        told << QStringLiteral("open ") + name;
        return games.contains(name);
    }
    QString emulator() override { return emulatorToAsk; }
    QString emulatorPath(ScriptEmulator emulator) const override
    {
        return scriptFolder + QStringLiteral("/apps/%1").arg(static_cast<int>(emulator));
    }
    QStringList argumentsArray() override { return {QStringLiteral("-one")}; }
    QStringList argumentsArray2() override { return {QStringLiteral("-Two"), QStringLiteral("1")}; }
    QString romFolder() const override { return roms; }
    std::optional<QString> useAsCatalogue(const QString& path) override
    {
        told << QStringLiteral("use ") + path;
        return changes;
    }
    void showChanges() override { told << QStringLiteral("show changes"); }
    QString pathOfDataFile() const override { return favourites; }
    void dir_make(const QString& path) override
    {
        told << QStringLiteral("make ") + path;
        QDir().mkpath(path);
    }
    void set_favorites() override { told << QStringLiteral("read favourites"); }
    std::expected<QString, Failure> keepUnsavedFavourites() override
    {
        told << QStringLiteral("keep unsaved");
        return unsaved;
    }

    static RecordDictionary record(const QString& name)
    {
        RecordDictionary record;
        for (const std::string_view field : fieldNames)
            record.insert(fieldText(field), name + QLatin1Char(' ') + fieldText(field));
        record[QStringLiteral("name")] = name;
        return record;
    }
};

/// Looks at the program while a panel or an alert is open.
struct WatchedDesktop : ScriptedDesktop {
    std::function<void()> whileOpen;

    std::optional<QString> savePanel(const SaveRequest& request) override
    {
        if (whileOpen)
            whileOpen();
        return ScriptedDesktop::savePanel(request);
    }
};

/// The utility window on a desktop that answers from a script.
struct UtilityStage {
    QTemporaryDir folder;
    WatchedDesktop desktop;
    UserDefaults defaults{folder.filePath(QStringLiteral("settings.ini"))};
    DefaultsController controller{defaults};
    /// Before the window: its boxes show them.
    bool hasInitialValues
        = (controller.setInitialValues(QStringLiteral("Sans"), QStringLiteral("/home")), true);
    ScriptedRooms rooms;
    UtilityObject utility{desktop, controller, rooms};
    UtilityWindow& window = utility.utilityWindow();
    UtilityFoot& foot = *window.foot;

    QString path(const QString& name) const { return folder.filePath(name); }

    QString file(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly)
            || file.write(bytes) != bytes.size())
            QTest::qFail("no file", __FILE__, __LINE__);
        return file.fileName();
    }

    /// A program that plays the emulator.
    QString script(const QByteArray& commands) const
    {
        const QString program = file("mame", "#!/bin/sh\n" + commands + '\n');
        QFile::setPermissions(program, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        return program;
    }

    QByteArray read(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QString information() const { return foot.infoTextField->text(); }
    bool isIndicatorRunning() const { return foot.progressInd->maximum() == 0; }
    bool isBusy() const { return !foot.button_cancel->isHidden(); }

    /// As a person would; until what it began has ended.
    void press(QPushButton* button)
    {
        QTest::mouseClick(button, Qt::LeftButton);
        if (!QTest::qWaitFor([this] { return !isBusy(); }, 30'000))
            QTest::qFail("it never ends", __FILE__, __LINE__);
    }
};

} // namespace tessera::test
