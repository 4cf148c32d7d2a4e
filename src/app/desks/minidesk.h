#pragma once

#include "catalogue/gameselection.h"

#include <QObject>

#include <memory>

namespace tessera {

class Catalogue;
class DefaultsController;
class GameFinder;
class GameListController;
struct GameRecord;
class MiniWindow;
class Windows;

/// Joins the mini window to the catalogue: what is suggested, and the title of the set in its field.
class MiniDesk : public QObject, public GameSelection
{
    Q_OBJECT

public:
    MiniDesk(Windows& windows, Catalogue& catalogue, GameListController& list, GameFinder& finder,
             DefaultsController& defaults, QObject* parent = nullptr);
    ~MiniDesk() override;

    /// Made when it is first asked for.
    MiniWindow& window();
    /// The text of its field, and what the catalogue has of it.
    SelectedGame selected() const override;
    QString game() const;
    void setGame(const QString& set);
    /// Names the kind of emulator.
    void setEmulator(const QString& title);

public Q_SLOTS:
    /// A random game's set name into the field.
    void random();

Q_SIGNALS:
    void windowMade(tessera::MiniWindow& window);
    void launchRequested(const QString& game);
    void mainWanted();

private:
    const GameRecord* record() const;
    void suggest(const QString& text);
    void showTitle();
    void setAbove(bool above);

    Windows& m_windows;
    Catalogue& m_catalogue;
    GameListController& m_list;
    GameFinder& m_finder;
    DefaultsController& m_defaults;
    QString m_emulator;
    std::unique_ptr<MiniWindow> m_window;
};

} // namespace tessera
