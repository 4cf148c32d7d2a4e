#include "favourites/ui/playedcontroller.h"

#include "favourites/playedgames.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"

#include <QDir>
#include <QFileInfo>

namespace tessera {

PlayedController::PlayedController(PlayedGames& played, Desktop& desktop, DefaultsController& defaults,
                                   QObject* parent)
    : QObject(parent)
    , m_played(played)
    , m_desktop(desktop)
    , m_defaults(defaults)
{
}

void PlayedController::open()
{
    if (const auto opened = m_played.open(); !opened)
        m_desktop.log(opened.error().text());
}

bool PlayedController::notesPlayed() const
{
    return !m_defaults.stored().flag(keys::PlayedIsOff.name);
}

void PlayedController::setNotesPlayed(bool notes)
{
    m_defaults.keep(keys::PlayedIsOff, !notes);
}

void PlayedController::notePlayed(const QString& game)
{
    if (game.isEmpty() || !notesPlayed())
        return;
    m_played.note(QDir::isAbsolutePath(game) ? QFileInfo(game).completeBaseName() : game, m_desktop.now());
    save();
}

void PlayedController::clearPlayed()
{
    if (m_played.isEmpty())
        return;
    Alert alert;
    alert.style = Alert::Style::Warning;
    alert.message = qtTrId("played_clear_message");
    alert.informative = qtTrId("played_clear_info");
    alert.buttons = {qtTrId("played_clear"), qtTrId("cancel")};
    if (m_desktop.runAlert(alert) != 0)
        return;
    m_played.clear();
    save();
}

void PlayedController::save()
{
    QDir().mkpath(QFileInfo(m_played.path()).path());
    if (const auto saved = m_played.save(); !saved)
        m_desktop.log(saved.error().text());
}

} // namespace tessera
