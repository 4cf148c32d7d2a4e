#pragma once

#include "app/windows/listwindow.h"

class QProgressBar;

namespace tessera {

class ChipBar;
class RebuildStrip;
class SearchField;

/// The game list. Closing it asks for the end of the program.
class MainWindow : public ListWindow
{
    Q_OBJECT

public:
    explicit MainWindow(DefaultsController& defaults);

    GameTableView* gameTable;
    RebuildStrip* rebuildStrip;
    ChipBar* chipBar;
    SearchField* searchField;
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

    /// With what hides the others, each in a few words. Why a list may be empty, beside that nothing passes
    /// its filters: nobody has chosen a ROM folder.
    void showCount(std::size_t shown, std::size_t all, const QStringList& reasons, bool romsMissing);
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

    /// Its geometry, too.
    void restore();
    void remember();

private:
    static const Kind& kind();
    Bar* makeButtons();
    void makeStatusLine();
    void sayWhatToDo(bool rebuilding);

    bool m_romsMissing = false;
    bool m_isFiltered = false;
    bool m_isRebuilding = false;
    QLabel* m_emulator;
};

} // namespace tessera
