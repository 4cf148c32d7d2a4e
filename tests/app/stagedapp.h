#pragma once

#include "app/tessera_appdelegate.h"
#include "platform/recentdocuments.h"
#include "support/scripteddesktop.h"

#include <QTemporaryDir>

namespace tessera::test {

/// The whole program on a scripted desktop, with a catalogue and settings of its own. The emulator is the
/// stand-in program unless a test chooses another.
class StagedApp
{
public:
    StagedApp();

    /// Writes a catalogue of four machines: 1943, galaga (a clone with no driver status of the three), pong, qix.
    void writeCatalogue();
    void writeStore(const QByteArray& bytes);
    QByteArray store() const;

    /// Start-up as main() does it.
    void start(const QString& file = QString());
    /// What a first start asks when there is no catalogue.
    void expectMissingStore(int recovery);

    QString path(const QString& name) const { return folder.filePath(name); }
    QString storePath() const { return path(QStringLiteral("data/Tessera.xml")); }
    QString settingsPath() const { return path(QStringLiteral("settings.ini")); }
    /// Stores ExecutionPath.
    void useEmulator(const QString& executable);

    QTemporaryDir folder;
    ScriptedDesktop desktop;
    UserDefaults defaults;
    RecentDocuments recent;
    std::unique_ptr<Tessera_AppDelegate> app;
};

} // namespace tessera::test
