#pragma once

#include <QMainWindow>

class QLabel;
class QProgressBar;
class QPushButton;
class QSplitter;
class QStackedWidget;
class QToolButton;

namespace tessera {

class DefaultsController;
class ChipBar;
class EmptyState;
class FactsPanel;
class GameTableView;
class RebuildStrip;
class SearchField;
class SidePanel;
class SplitView_custom;

/// The game list with its side panel, tool row and status line. Closing it asks for the end of the program.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(DefaultsController& defaults);

    GameTableView* gameTable;
    SidePanel* sidePanel;
    FactsPanel* factsPanel; ///< in the side panel
    RebuildStrip* rebuildStrip;
    ChipBar* chipBar;
    SearchField* searchField;
    EmptyState* emptyState;
    QPushButton* playButton;
    QToolButton* stopButton;
    QToolButton* randomButton;
    QToolButton* filterButton;
    QToolButton* favoritesButton;
    QToolButton* logButton;
    QToolButton* toolsButton;
    QToolButton* preferencesButton;
    QPushButton* rebuildButton;
    QPushButton* showAllButton;
    QPushButton* changesButton;
    QLabel* runningLabel;
    QPushButton* runningStopButton; ///< beside it
    QProgressBar* progressIndicator;

    /// Why a list may be empty, beside that nothing passes its filters: nobody has chosen a ROM folder.
    void setRomsMissing(bool missing) { m_romsMissing = missing; }
    /// With what hides the others, each in a few words.
    void showCount(std::size_t shown, std::size_t all, const QStringList& reasons);
    /// Says a thing once in the status line; it stays until the next one.
    void showMessage(const QString& sentence);
    /// Says nothing, where that was the last sentence.
    void takeBack(const QString& sentence);
    void showEmulator(const QString& text);
    /// The title names the kind of emulator.
    void Setwindowtitle(const QString& kind);
    /// `sentence` says what runs.
    void setRunning(bool running, const QString& sentence);
    /// While a catalogue is being built the old one is not edited: the edits would go with it.
    void setRebuilding(bool rebuilding);
    /// A button in the status line, for an emulator that is another one than the catalogue was built from.
    void offerRebuild(bool offered);
    void setBusy(bool busy);

    /// Geometry and columns as they were left, and back into the settings.
    void restore();
    void remember();

Q_SIGNALS:
    void closeRequested();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QWidget* makeToolRow();
    void makeStatusLine();
    void applyRowHeight();
    void sayWhatToDo(bool rebuilding);

    DefaultsController& m_defaults;
    bool m_romsMissing = false;
    bool m_isFiltered = false;
    bool m_isRebuilding = false;
    QSplitter* m_split;
    SplitView_custom* m_splitLimits;
    QStackedWidget* m_pages;
    QLabel* m_count;
    QLabel* m_message;
    QLabel* m_emulator;
};

} // namespace tessera
