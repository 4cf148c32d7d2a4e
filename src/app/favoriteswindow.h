#pragma once

#include <QMainWindow>

#include <cstddef>

class QLabel;
class QMenuBar;
class QPushButton;
class QStackedWidget;
class QToolButton;

namespace tessera {

class ChipButton;
class DefaultsController;
class EmptyState;
class FactsPanel;
class FavouritesTable;
class SidePanel;
class SiteChoice;
class SplitView_custom;

/// The favourites with their side panel. It takes the main window's place.
class FavoritesWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit FavoritesWindow(DefaultsController& defaults);

    FavouritesTable* favoritesTable;
    SidePanel* sidePanel;
    FactsPanel* factsPanel; ///< in the side panel
    SiteChoice* siteChoice; ///< in the side panel too
    EmptyState* emptyState;
    QPushButton* playButton;
    QToolButton* stopButton;
    QToolButton* randomButton;
    QToolButton* editButton;
    QToolButton* removeButton;
    QToolButton* mainButton;
    QToolButton* miniButton;
    ChipButton* recentChip; ///< only what was played in the last days
    QPushButton* saveButton; ///< shown while something is not saved

    /// The same menus as in the main window.
    void takeMenus(const QMenuBar& from);
    void showCount(std::size_t shown, std::size_t all);
    void showUnsaved(bool unsaved);
    void showMessage(const QString& sentence);
    void setRunning(bool running);

    /// Columns and divider as they were left, and back into the settings.
    void restore();
    void remember();

Q_SIGNALS:
    void closeRequested();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* makeToolRow();
    void makeStatusLine();

    DefaultsController& m_defaults;
    SplitView_custom* m_split;
    QStackedWidget* m_pages;
    QLabel* m_count;
    QLabel* m_unsaved;
    QLabel* m_message;
};

} // namespace tessera
