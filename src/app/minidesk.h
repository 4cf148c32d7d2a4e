#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QWidget;

namespace tessera {

class Catalogue;
class DefaultsController;
class GameFinder;
struct GameRecord;
class MiniWindow;

/// Joins the mini window to the catalogue: what is suggested, and the title of the set in its field.
class MiniDesk : public QObject
{
    Q_OBJECT

public:
    MiniDesk(Catalogue& catalogue, GameFinder& finder, DefaultsController& defaults,
             QObject* parent = nullptr);
    ~MiniDesk() override;

    /// Made when it is first asked for.
    MiniWindow& window();
    /// The text of its field.
    QString game() const;
    /// Its record; null where the catalogue has none.
    const GameRecord* record() const;
    void setGame(const QString& set);
    /// Names the kind of emulator.
    void setEmulator(const QString& title);

Q_SIGNALS:
    void windowMade(QWidget& window);

private:
    void suggest(const QString& text);
    void showTitle();
    void setAbove(bool above);

    Catalogue& m_catalogue;
    GameFinder& m_finder;
    DefaultsController& m_defaults;
    QString m_emulator;
    std::unique_ptr<MiniWindow> m_window;
};

} // namespace tessera
