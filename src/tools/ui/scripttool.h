#pragma once

#include "tools/launchscript.h"

#include <QObject>

#include <functional>

namespace tessera {

class ScriptPage;
class Workbench;

/// What the script maker asks of the rest of the program.
struct ScriptSources {
    std::function<QString()> tableViewSelectionROM;
    std::function<QString()> tableViewSelectionTitleE;
    std::function<QString()> tableViewSelectionTitleJ;
    std::function<QString(ScriptEmulator emulator)> emulatorPath;
    std::function<QStringList()> argumentsArray; ///< as the command-line emulator understands them
    std::function<QStringList()> argumentsArray2;
};

/// The commands of the launch script maker.
class ScriptTool : public QObject
{
    Q_OBJECT

public:
    ScriptTool(ScriptPage& page, Workbench& workbench, ScriptSources sources, QObject* parent = nullptr);

public Q_SLOTS:
    void makingAction();
    void scriptChangeAction();

private:
    QStringList options(ScriptEmulator emulator) const;
    QString fileName(ScriptFormat format) const;
    void save(const QString& path, const ScriptRequest& request);

    ScriptPage& m_page;
    Workbench& m_workbench;
    ScriptSources m_sources;
};

} // namespace tessera
