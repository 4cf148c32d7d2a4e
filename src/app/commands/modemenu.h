#pragma once

#include <QObject>

class QAction;
class QMenuBar;

namespace tessera {

class LaunchController;

/// The launch modes as menu items, exactly one of which is marked.
class ModeMenu : public QObject
{
    Q_OBJECT

public:
    ModeMenu(QMenuBar& bar, LaunchController& launches, QObject* parent = nullptr);

    /// Marks the item with this title, and no other.
    void mark(const QString& title);

private:
    const QMenuBar& m_bar;
    QAction* m_oldselectLaunchemu = nullptr;
};

} // namespace tessera
