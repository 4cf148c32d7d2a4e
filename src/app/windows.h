#pragma once

#include "app/keywindow.h"
#include "app/windowplaces.h"

class QMenuBar;

namespace tessera {

/// What our windows have beside their own controls. Each is handed here when it is made, and to what of this
/// it takes part in.
class Windows : public QObject
{
    Q_OBJECT

public:
    Windows(const QMenuBar& menus, DefaultsController& defaults);

    const QMenuBar& menus() const { return m_menus; }
    /// Which of those that are watched is key.
    KeyWindow& key() { return m_key; }
    /// Where they were left.
    WindowPlaces& places() { return m_places; }

    /// Commands tell it from the others, and Delete goes to its controls first.
    void watch(QWidget& window, KeyWindow::Kind kind);
    /// Without a menu bar of its own a window still takes the menus' keys.
    void carryMenuKeys(QWidget& window) const;
    /// A file that is dropped on it is opened.
    void openDropped(QWidget& window);

Q_SIGNALS:
    void dropped(const QString& path);

private:
    const QMenuBar& m_menus;
    KeyWindow m_key;
    WindowPlaces m_places;
};

} // namespace tessera
