#pragma once

#include "tools/launchscript.h"

#include <QObject>

namespace tessera {

class ScriptPage;
class UtilityHost;
class Workbench;

/// The commands of the launch script maker.
class ScriptTool : public QObject
{
    Q_OBJECT

public:
    ScriptTool(ScriptPage& page, Workbench& workbench, UtilityHost& host, QObject* parent = nullptr);

public Q_SLOTS:
    void makingAction();
    void scriptChangeAction();

private:
    QStringList options(ScriptEmulator emulator) const;
    QString fileName(ScriptFormat format) const;
    void save(const QString& path, const ScriptRequest& request);

    ScriptPage& m_page;
    Workbench& m_workbench;
    UtilityHost& m_host;
};

} // namespace tessera
