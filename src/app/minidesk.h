#pragma once

#include <QObject>

#include <memory>

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

    MiniWindow& window() { return *m_window; }
    /// The text of its field.
    QString game() const;
    void setGame(const QString& set);
    void awakeFromNib();

private:
    void suggest(const QString& text);
    void showTitle(const QString& set);
    void setAbove(bool above);

    Catalogue& m_catalogue;
    GameFinder& m_finder;
    DefaultsController& m_defaults;
    std::unique_ptr<MiniWindow> m_window;
};

} // namespace tessera
