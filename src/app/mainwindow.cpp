#include "app/mainwindow.h"

#include "app/emptystate.h"
#include "app/rebuildstrip.h"
#include "app/sidepanel.h"
#include "catalogue/ui/chipbar.h"
#include "catalogue/ui/factspanel.h"
#include "catalogue/ui/gametablemodel.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/searchfield.h"
#include "platform/defaultscontroller.h"
#include "widgets/bar.h"
#include "widgets/plaintooltip.h"
#include "widgets/splitview_custom.h"
#include "widgets/theme.h"
#include "widgets/toolbutton.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr QSize firstSize(1200, 760);
constexpr int sidePanelWidth = 300;
constexpr std::array columnWidths{128, 240, 172, 56, 112, 76}; // the last column takes what is left

} // namespace

MainWindow::MainWindow(DefaultsController& defaults)
    : gameTable(new GameTableView)
    , sidePanel(new SidePanel(defaults, QStringLiteral("SecondSplitView")))
    , factsPanel(sidePanel->factsPanel)
    , rebuildStrip(new RebuildStrip)
    , chipBar(new ChipBar)
    , searchField(new SearchField)
    , emptyState(new EmptyState)
    , m_defaults(defaults)
    , m_split(new QSplitter)
    , m_splitLimits(new SplitView_custom(this))
    , m_pages(new QStackedWidget)
    , m_count(new QLabel)
    , m_message(new QLabel)
    , m_emulator(new QLabel)
{
    setObjectName(QStringLiteral("mainWindow"));
    gameTable->setObjectName(QStringLiteral("gameTable"));
    gameTable->setAccessibleName(qtTrId("main_list"));

    m_pages->addWidget(gameTable);
    m_pages->addWidget(emptyState);
    auto* listSide = new QWidget;
    auto* listLayout = new QVBoxLayout(listSide);
    listLayout->setContentsMargins(0, 0, 0, 0);
    listLayout->setSpacing(0);
    listLayout->addWidget(rebuildStrip);
    listLayout->addWidget(chipBar);
    listLayout->addWidget(m_pages, 1);

    m_split->addWidget(sidePanel);
    m_split->addWidget(listSide);
    m_split->setObjectName(QStringLiteral("MainSplitView"));
    m_split->setHandleWidth(1);
    m_splitLimits->setSplitView(m_split);
    m_splitLimits->setSplitView2(sidePanel->splitView);

    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeToolRow());
    layout->addWidget(m_split, 1);
    setCentralWidget(content);
    makeStatusLine();

    applyRowHeight();
    connect(&m_defaults, &DefaultsController::changed, this, &MainWindow::applyRowHeight);
    sayWhatToDo(false);
}

QWidget* MainWindow::makeToolRow()
{
    auto* row = new Bar(Bar::Place::Top);
    playButton = accentButton(QStringLiteral("play"), qtTrId("main_play"));
    stopButton = toolButton(QStringLiteral("stop"), qtTrId("main_stop"));
    stopButton->setEnabled(false);
    randomButton = toolButton(QStringLiteral("random"), qtTrId("main_random"));
    filterButton = toolButton(QStringLiteral("filter"), qtTrId("main_filter"));
    favoritesButton = toolButton(QStringLiteral("star"), qtTrId("favorites_list"));
    logButton = toolButton(QStringLiteral("log"), qtTrId("main_log"));
    toolsButton = toolButton(QStringLiteral("tools"), qtTrId("main_tools"));
    preferencesButton = toolButton(QStringLiteral("preferences"), qtTrId("main_preferences"));

    QHBoxLayout* layout = row->row();
    layout->addWidget(playButton);
    for (QToolButton* button :
         {stopButton, randomButton, filterButton, favoritesButton, logButton, toolsButton, preferencesButton})
        layout->addWidget(button);
    layout->addStretch(1);
    searchField->setMaximumWidth(420);
    layout->addWidget(searchField, 2);
    return row;
}

void MainWindow::makeStatusLine()
{
    m_count->setObjectName(QStringLiteral("countLabel"));
    m_count->setTextFormat(Qt::PlainText);
    m_message->setObjectName(QStringLiteral("messageLabel"));
    m_message->setTextFormat(Qt::PlainText);
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_emulator->setObjectName(QStringLiteral("emulatorLabel"));
    m_emulator->setTextFormat(Qt::PlainText);
    rebuildButton = new QPushButton(qtTrId("rebuild_button"));
    rebuildButton->setObjectName(QStringLiteral("rebuildButton"));
    rebuildButton->setToolTip(qtTrId("rebuild_outdated"));
    rebuildButton->setProperty("role", QStringLiteral("link"));
    rebuildButton->hide();
    showAllButton = new QPushButton(qtTrId("main_showall"));
    showAllButton->setObjectName(QStringLiteral("showAllButton"));
    showAllButton->setProperty("role", QStringLiteral("link"));
    showAllButton->hide();
    changesButton = new QPushButton(qtTrId("main_changes"));
    changesButton->setObjectName(QStringLiteral("changesButton"));
    changesButton->setProperty("role", QStringLiteral("link"));
    changesButton->hide();
    runningLabel = new QLabel;
    runningLabel->setObjectName(QStringLiteral("runningLabel"));
    runningLabel->setTextFormat(Qt::PlainText);
    runningLabel->hide();
    runningStopButton = new QPushButton(qtTrId("main_stopnow"));
    runningStopButton->setObjectName(QStringLiteral("runningStopButton"));
    runningStopButton->setAccessibleName(qtTrId("main_stop"));
    runningStopButton->setProperty("role", QStringLiteral("link"));
    runningStopButton->hide();
    progressIndicator = new QProgressBar;
    progressIndicator->setFixedWidth(96);
    progressIndicator->setTextVisible(false);
    progressIndicator->setAccessibleName(qtTrId("main_progress"));
    progressIndicator->hide();
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addWidget(m_count);
    statusBar()->addWidget(showAllButton);
    statusBar()->addWidget(runningLabel);
    statusBar()->addWidget(runningStopButton);
    statusBar()->addWidget(m_message, 1);
    statusBar()->addPermanentWidget(progressIndicator);
    statusBar()->addPermanentWidget(changesButton);
    statusBar()->addPermanentWidget(rebuildButton);
    statusBar()->addPermanentWidget(m_emulator);
}

void MainWindow::applyRowHeight()
{
    // The setting may have half a pixel (13.5), rows have whole ones.
    const int height = qBound(8, qRound(m_defaults.number(keys::rowHeight)), 400);
    if (gameTable->verticalHeader()->defaultSectionSize() != height)
        gameTable->verticalHeader()->setDefaultSectionSize(height);
}

void MainWindow::showCount(std::size_t shown, std::size_t all, const QStringList& reasons)
{
    const QLocale locale;
    const QString total = locale.toString(static_cast<qulonglong>(all));
    QStringList parts{
        shown == all ? qtTrId("main_count").arg(total)
                     : qtTrId("main_count_some").arg(locale.toString(static_cast<qulonglong>(shown)), total)};
    m_count->setText((parts + reasons).join(QStringLiteral("  ·  ")));
    showAllButton->setVisible(!reasons.isEmpty());
    m_isFiltered = shown == 0 && all > 0;
    sayWhatToDo(m_isRebuilding);
    m_pages->setCurrentWidget(shown == 0 ? static_cast<QWidget*>(emptyState) : gameTable);
}

void MainWindow::showMessage(const QString& sentence)
{
    m_message->setText(sentence);
    m_message->setToolTip(plainToolTip(sentence));
}

void MainWindow::takeBack(const QString& sentence)
{
    if (m_message->text() == sentence)
        showMessage(QString());
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
    stopButton->setEnabled(running);
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
    const UserDefaults& stored = m_defaults.stored();
    resize(firstSize);
    if (const auto geometry = stored.value(keys::MainWindowGeometry.name))
        restoreGeometry(geometry->toByteArray());
    m_split->setSizes({sidePanelWidth, firstSize.width() - sidePanelWidth});
    if (const auto split = stored.value(keys::MainWindowSplit.name))
        m_split->restoreState(split->toByteArray());
    if (const auto split = stored.value(keys::MainWindowSplit2.name))
        sidePanel->splitView->restoreState(split->toByteArray());
    for (std::size_t i = 0; i < columnWidths.size(); ++i)
        gameTable->setColumnWidth(static_cast<int>(i), columnWidths[i]);
    for (std::size_t i = 0; i < GameTableModel::columns.size(); ++i) {
        if (std::ranges::find(GameTableModel::hiddenColumns, GameTableModel::columns[i])
            != GameTableModel::hiddenColumns.end())
            gameTable->setColumnHidden(static_cast<int>(i), true);
    }
    if (const auto columns = stored.value(keys::MainWindowColumns.name)) {
        // Widths and places only: the last run's sort is not this one's, not even among what is equal.
        const QSignalBlocker unsorted(gameTable->horizontalHeader());
        gameTable->horizontalHeader()->restoreState(columns->toByteArray());
    }
    gameTable->setFocus();
}

void MainWindow::remember()
{
    m_defaults.keep(keys::MainWindowGeometry, saveGeometry());
    m_defaults.keep(keys::MainWindowSplit, m_split->saveState());
    m_defaults.keep(keys::MainWindowSplit2, sidePanel->splitView->saveState());
    m_defaults.keep(keys::MainWindowColumns, gameTable->horizontalHeader()->saveState());
}

void MainWindow::closeEvent(QCloseEvent* event)
{
    // The delegate decides, and hides the window when the program ends.
    event->ignore();
    Q_EMIT closeRequested();
}

} // namespace tessera
