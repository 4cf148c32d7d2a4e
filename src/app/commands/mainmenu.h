#pragma once

#include <QObject>

#include <functional>
#include <vector>

class QAction;
class QMenu;
class QMenuBar;

namespace tessera {

class KeyCommands;
class PlayedController;
class RecentDocuments;

/// A line of a menu. Its text's key is the name of its item.
struct MenuRow {
    const char* menu;
    const char* text = nullptr; ///< a separator
    const char* shortcuts = nullptr; ///< apart by "; ", the one that is shown first
    std::function<void()> command = nullptr;
    bool (KeyCommands::*isEnabled)() const = nullptr; ///< always, but for what it says
};

/// The menu bar; its shortcuts work in every window.
class MainMenu : public QObject
{
    Q_OBJECT

public:
    MainMenu(QMenuBar& bar, const std::vector<MenuRow>& rows, const KeyCommands& keys,
             QObject* parent = nullptr);

    QMenu& menu(const char* key) const;
    QAction& action(const char* key) const;

    void addRecent(const RecentDocuments& recent);
    /// Those of the list of the key window.
    void addColumns(const KeyCommands& keys);
    void addPlayedSwitch(PlayedController& played);

Q_SIGNALS:
    void openRequested(const QString& path);

private:
    void fillRecent(QMenu& menu, const RecentDocuments& recent);

    QMenuBar& m_bar;
};

} // namespace tessera
