#include "app/favoriteswindow.h"

#include "app/emptystate.h"
#include "app/sidepanel.h"
#include "catalogue/ui/chipbar.h"
#include "catalogue/ui/factspanel.h"
#include "favourites/ui/favouritestable.h"
#include "favourites/ui/favouritestablemodel.h"
#include "info/ui/sitechoice.h"
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
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolButton>

namespace tessera {

namespace {

constexpr int sidePanelWidth = 300;
constexpr QSize firstSize(1200, 760);

struct ColumnWidth {
    FavouriteColumn column;
    int width;
};

constexpr std::array columnWidths{
    ColumnWidth{FavouriteColumn::Name, 112},    ColumnWidth{FavouriteColumn::Title, 200},
    ColumnWidth{FavouriteColumn::Titlejp, 140}, ColumnWidth{FavouriteColumn::Year, 56},
    ColumnWidth{FavouriteColumn::Maker, 100},   ColumnWidth{FavouriteColumn::Option, 96},
    ColumnWidth{FavouriteColumn::Times, 72},
};

} // namespace

FavoritesWindow::FavoritesWindow(DefaultsController& defaults)
    : favoritesTable(new FavouritesTable(defaults))
    , sidePanel(new SidePanel(defaults, QStringLiteral("SecondSplitView2")))
    , factsPanel(sidePanel->factsPanel)
    , siteChoice(new SiteChoice(defaults))
    , emptyState(new EmptyState)
    , m_defaults(defaults)
    , m_split(new SplitView_custom(this))
    , m_pages(new QStackedWidget)
    , m_count(new QLabel)
    , m_unsaved(new QLabel)
    , m_message(new QLabel)
{
    setObjectName(QStringLiteral("favoritesWindow"));
    setWindowTitle(qtTrId("favorites_window"));
    favoritesTable->setObjectName(QStringLiteral("favoritesTable"));
    favoritesTable->setAccessibleName(qtTrId("favorites_list"));
    emptyState->showReason(qtTrId("favorites_empty"), qtTrId("mini_main"));
    sidePanel->addSites(siteChoice);

    m_pages->addWidget(favoritesTable);
    m_pages->addWidget(emptyState);
    auto* split = new QSplitter;
    split->setObjectName(QStringLiteral("MainSplitView2"));
    split->setHandleWidth(1);
    split->addWidget(sidePanel);
    split->addWidget(m_pages);
    m_split->setSplitView(split);
    m_split->setSplitView2(sidePanel->splitView);

    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(makeToolRow());
    layout->addWidget(split, 1);
    setCentralWidget(content);
    makeStatusLine();
    resize(firstSize);
    connect(favoritesTable, &GameTableView::typed, favoritesTable, &QAbstractItemView::keyboardSearch);
}

QWidget* FavoritesWindow::makeToolRow()
{
    auto* row = new Bar(Bar::Place::Top);
    playButton = accentButton(QStringLiteral("play"), qtTrId("main_play"));
    stopButton = toolButton(QStringLiteral("stop"), qtTrId("main_stop"));
    stopButton->setEnabled(false);
    randomButton = toolButton(QStringLiteral("random"), qtTrId("main_random"));
    editButton = toolButton(QStringLiteral("edit"), qtTrId("favorites_edit"));
    removeButton = toolButton(QStringLiteral("remove"), qtTrId("favorites_remove"));
    recentChip = new ChipButton(qtTrId("favorites_recent"));
    recentChip->setObjectName(QStringLiteral("recentChip"));
    recentChip->setAccessibleName(recentChip->text());
    miniButton = toolButton(QStringLiteral("mini"), qtTrId("favorites_mini"));
    mainButton = toolButton(QStringLiteral("list"), qtTrId("mini_main"));

    QHBoxLayout* layout = row->row();
    layout->addWidget(playButton);
    for (QToolButton* button : {stopButton, randomButton, editButton, removeButton})
        layout->addWidget(button);
    layout->addSpacing(8);
    layout->addWidget(recentChip);
    layout->addStretch(1);
    layout->addWidget(miniButton);
    layout->addWidget(mainButton);
    return row;
}

void FavoritesWindow::makeStatusLine()
{
    for (QLabel* label : {m_count, m_unsaved, m_message})
        label->setTextFormat(Qt::PlainText);
    m_count->setObjectName(QStringLiteral("favoritesCount"));
    m_unsaved->setObjectName(QStringLiteral("unsavedLabel"));
    m_unsaved->setText(qtTrId("favorites_unsaved"));
    m_unsaved->setProperty("role", QStringLiteral("notice"));
    m_message->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    saveButton = new QPushButton(qtTrId("favorites_save"));
    saveButton->setObjectName(QStringLiteral("favoritesSaveButton"));
    saveButton->setProperty("role", QStringLiteral("link"));
    statusBar()->setSizeGripEnabled(false);
    statusBar()->addWidget(m_count);
    statusBar()->addWidget(m_unsaved);
    statusBar()->addWidget(saveButton);
    statusBar()->addWidget(m_message, 1);
    showUnsaved(false);
}

void FavoritesWindow::takeMenus(const QMenuBar& from)
{
    for (QAction* action : from.actions())
        menuBar()->addAction(action);
}

void FavoritesWindow::showCount(std::size_t shown, std::size_t all)
{
    const QLocale locale;
    const QString total = locale.toString(static_cast<qulonglong>(all));
    m_count->setText(
        shown == all
            ? qtTrId("favorites_count").arg(total)
            : qtTrId("favorites_count_some").arg(locale.toString(static_cast<qulonglong>(shown)), total));
    emptyState->showReason(qtTrId(all == 0 ? textKey("favorites_empty") : textKey("favorites_none_recent")),
                           all == 0 ? qtTrId("mini_main") : qtTrId("main_showall"));
    m_pages->setCurrentWidget(shown == 0 ? static_cast<QWidget*>(emptyState) : favoritesTable);
}

void FavoritesWindow::showUnsaved(bool unsaved)
{
    m_unsaved->setVisible(unsaved);
    saveButton->setVisible(unsaved);
}

void FavoritesWindow::showMessage(const QString& sentence)
{
    m_message->setText(sentence);
    m_message->setToolTip(plainToolTip(sentence));
}

void FavoritesWindow::setRunning(bool running)
{
    stopButton->setEnabled(running);
}

void FavoritesWindow::restore()
{
    const UserDefaults& stored = m_defaults.stored();
    m_split->splitView()->setSizes({sidePanelWidth, firstSize.width() - sidePanelWidth});
    if (const auto split = stored.value(keys::FavoritesWindowSplit.name))
        m_split->splitView()->restoreState(split->toByteArray());
    if (const auto split = stored.value(keys::FavoritesWindowSplit2.name))
        m_split->splitView2()->restoreState(split->toByteArray());
    for (const ColumnWidth& each : columnWidths)
        favoritesTable->setColumnWidth(static_cast<int>(each.column), each.width);
    if (const auto columns = stored.value(keys::FavoritesWindowColumns.name)) {
        const QSignalBlocker unsorted(favoritesTable->horizontalHeader());
        favoritesTable->horizontalHeader()->restoreState(columns->toByteArray());
    }
    favoritesTable->setFocus();
}

void FavoritesWindow::remember()
{
    m_defaults.keep(keys::FavoritesWindowSplit, m_split->splitView()->saveState());
    m_defaults.keep(keys::FavoritesWindowSplit2, m_split->splitView2()->saveState());
    m_defaults.keep(keys::FavoritesWindowColumns, favoritesTable->horizontalHeader()->saveState());
}

void FavoritesWindow::closeEvent(QCloseEvent* event)
{
    event->ignore();
    Q_EMIT closeRequested();
}

} // namespace tessera
