#pragma once

#include <QObject>

namespace tessera {

class Catalogue;
class Desktop;
class Finding;
class GameListController;
class WindowSwitching;

/// Shows a machine in the main window, also one that was hidden.
class GameOpening : public QObject
{
    Q_OBJECT

public:
    GameOpening(Desktop& desktop, const Catalogue& catalogue, GameListController& list, Finding& finding,
                WindowSwitching& switching, QObject* parent = nullptr);

    /// False where there is none of that name.
    bool openGame(const QString& name);

public Q_SLOTS:
    void openOrBeep(const QString& name);

private:
    Desktop& m_desktop;
    const Catalogue& m_catalogue;
    GameListController& m_list;
    Finding& m_finding;
    WindowSwitching& m_switching;
};

} // namespace tessera
