#include "app/windows/mainwindow.h"

#include "app/windows/emptystate.h"
#include "app/windows/rebuildstrip.h"
#include "catalogue/ui/chipbar.h"
#include "catalogue/ui/gametablemodel.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/searchfield.h"
#include "platform/defaultscontroller.h"
#include "widgets/bar.h"
#include "widgets/toolbutton.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace tessera {

MainWindow::MainWindow(DefaultsController& defaults)
    : ListWindow(defaults, new GameTableView, kind())
    , gameTable(table())
    , rebuildStrip(new RebuildStrip)
    , chipBar(new ChipBar)
    , searchField(new SearchField)
    , m_emulator(statusLabel("emulatorLabel"))
{
    setObjectName(QStringLiteral("mainWindow"));
    auto* listSide = new QWidget;
    auto* listLayout = new QVBoxLayout(listSide);
    listLayout->setContentsMargins(0, 0, 0, 0);
    listLayout->setSpacing(0);
    listLayout->addWidget(rebuildStrip);
    listLayout->addWidget(chipBar);
    listLayout->addWidget(pages(), 1);
    layOut(makeButtons(), listSide);
    makeStatusLine();
    sayWhatToDo(false);
}

const ListWindow::Kind& MainWindow::kind()
{
    // The last column takes what is left.
    static constexpr std::array<ColumnWidth, 6> widths{
        {{0, 128}, {1, 240}, {2, 172}, {3, 56}, {4, 112}, {5, 76}}};
    static const Kind kind{"gameTable",
                           textKey("main_list"),
                           "MainSplitView",
                           "SecondSplitView",
                           "countLabel",
                           textKey("main_count"),
                           textKey("main_count_some"),
                           keys::MainWindowSplit,
                           keys::MainWindowSplit2,
                           keys::MainWindowColumns,
                           widths};
    return kind;
}

Bar* MainWindow::makeButtons()
{
    Bar* bar = makeToolRow();
    filterButton = toolButton(QStringLiteral("filter"), qtTrId("main_filter"));
    favoritesButton = toolButton(QStringLiteral("star"), qtTrId("favorites_list"));
    logButton = toolButton(QStringLiteral("log"), qtTrId("main_log"));
    toolsButton = toolButton(QStringLiteral("tools"), qtTrId("main_tools"));
    preferencesButton = toolButton(QStringLiteral("preferences"), qtTrId("main_preferences"));

    QHBoxLayout* layout = bar->row();
    for (QToolButton* button : {filterButton, favoritesButton, logButton, toolsButton, preferencesButton})
        layout->addWidget(button);
    layout->addStretch(1);
    searchField->setMaximumWidth(420);
    layout->addWidget(searchField, 2);
    return bar;
}

void MainWindow::makeStatusLine()
{
    rebuildButton = statusButton("rebuildButton", qtTrId("rebuild_button"));
    rebuildButton->setToolTip(qtTrId("rebuild_outdated"));
    showAllButton = statusButton("showAllButton", qtTrId("main_showall"));
    changesButton = statusButton("changesButton", qtTrId("main_changes"));
    runningLabel = statusLabel("runningLabel");
    runningLabel->hide();
    runningStopButton = statusButton("runningStopButton", qtTrId("main_stopnow"));
    runningStopButton->setAccessibleName(qtTrId("main_stop"));
    progressIndicator = new QProgressBar;
    progressIndicator->setFixedWidth(96);
    progressIndicator->setTextVisible(false);
    progressIndicator->setAccessibleName(qtTrId("main_progress"));
    progressIndicator->hide();
    statusBar()->addWidget(countLabel());
    statusBar()->addWidget(showAllButton);
    statusBar()->addWidget(runningLabel);
    statusBar()->addWidget(runningStopButton);
    statusBar()->addWidget(message(), 1);
    statusBar()->addPermanentWidget(progressIndicator);
    statusBar()->addPermanentWidget(changesButton);
    statusBar()->addPermanentWidget(rebuildButton);
    statusBar()->addPermanentWidget(m_emulator);
}

void MainWindow::showCount(std::size_t shown, std::size_t all, const QStringList& reasons, bool romsMissing)
{
    ListWindow::showCount(shown, all, reasons);
    showAllButton->setVisible(!reasons.isEmpty());
    m_isFiltered = shown == 0 && all > 0;
    m_romsMissing = romsMissing;
    if (shown == 0)
        sayWhatToDo(m_isRebuilding);
}

void MainWindow::showEmulator(const QString& text)
{
    m_emulator->setText(text);
}

void MainWindow::setRunning(bool running, const QString& sentence)
{
    // The toolkit would pass the focus on to some other button.
    if (!running && runningStopButton->hasFocus())
        gameTable->setFocus();
    ListWindow::setRunning(running);
    runningLabel->setText(sentence);
    runningLabel->setVisible(running);
    runningStopButton->setVisible(running);
}

void MainWindow::setRebuilding(bool rebuilding)
{
    m_isRebuilding = rebuilding;
    sayWhatToDo(rebuilding);
}

void MainWindow::sayWhatToDo(bool rebuilding)
{
    if (m_isFiltered && m_romsMissing)
        emptyState->showReason(qtTrId("empty_noroms"), qtTrId("empty_chooseroms"));
    else if (m_isFiltered)
        emptyState->showReason(qtTrId("empty_filtered"), qtTrId("main_showall"));
    else if (rebuilding)
        emptyState->showReason(qtTrId("empty_rebuilding"), QString());
    else
        emptyState->showReason(qtTrId("empty_catalogue"), qtTrId("rebuild_from_mame"));
}

void MainWindow::offerRebuild(bool offered)
{
    rebuildButton->setVisible(offered);
    if (offered)
        showMessage(qtTrId("rebuild_outdated"));
}

void MainWindow::Setwindowtitle(const QString& kind)
{
    setWindowTitle(QStringLiteral("Tessera  |  ") + kind);
}

void MainWindow::setBusy(bool busy)
{
    progressIndicator->setRange(0, busy ? 0 : 1);
    progressIndicator->setVisible(busy);
}

void MainWindow::restore()
{
    resize(firstSize);
    if (const auto geometry = m_defaults.stored().value(keys::MainWindowGeometry.name))
        restoreGeometry(geometry->toByteArray());
    for (const Field field : GameTableModel::hiddenColumns)
        gameTable->setColumnHidden(GameTableModel::columnOf(field), true);
    ListWindow::restore();
}

void MainWindow::remember()
{
    m_defaults.keep(keys::MainWindowGeometry, saveGeometry());
    ListWindow::remember();
}

} // namespace tessera
