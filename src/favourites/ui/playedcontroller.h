#pragma once

#include <QObject>

namespace tessera {

class Desktop;
class DefaultsController;
class PlayedGames;

/// Notes which games are played, unless that is switched off.
class PlayedController : public QObject
{
    Q_OBJECT

public:
    PlayedController(PlayedGames& played, Desktop& desktop, DefaultsController& defaults,
                     QObject* parent = nullptr);

    /// Reads what was played; a failure is for the log only.
    void open();
    bool notesPlayed() const;

public Q_SLOTS:
    /// A game was started: a short name, or the path of an archive, which counts under its set name.
    void notePlayed(const QString& game);
    /// Forgets everything, when the user agrees.
    void clearPlayed();
    void setNotesPlayed(bool notes);

private:
    void save();

    PlayedGames& m_played;
    Desktop& m_desktop;
    DefaultsController& m_defaults;
};

} // namespace tessera
