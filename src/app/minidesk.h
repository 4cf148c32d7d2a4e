#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QWidget;

namespace tessera {

class Catalogue;
class DefaultsController;
class GameFinder;
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
    void setGame(const QString& set);
    /// Names the kind of emulator.
    void setEmulator(const QString& title);

Q_SIGNALS:
    void windowMade(QWidget& window);

private:
    void suggest(const QString& text);
    void showTitle(const QString& set);
    void setAbove(bool above);

    Catalogue& m_catalogue;
    GameFinder& m_finder;
    DefaultsController& m_defaults;
    QString m_emulator;
    std::unique_ptr<MiniWindow> m_window;
};

} // namespace tessera
