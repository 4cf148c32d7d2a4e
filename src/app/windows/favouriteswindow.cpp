#include "app/windows/favouriteswindow.h"

#include "app/windows/emptystate.h"
#include "app/windows/sidepanel.h"
#include "catalogue/ui/chipbar.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/searchfield.h"
#include "favourites/ui/favouritestablemodel.h"
#include "info/ui/sitechoice.h"
#include "platform/defaultscontroller.h"
#include "widgets/bar.h"
#include "widgets/toolbutton.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QToolButton>

namespace tessera {

namespace {

constexpr int leastField = 110;
constexpr int mostField = 420;

} // namespace

FavouritesWindow::FavouritesWindow(DefaultsController& defaults)
    : ListWindow(defaults, new GameTableView, kind())
    , favoritesTable(table())
    , siteChoice(new SiteChoice(defaults))
    , m_unsaved(statusLabel("unsavedLabel"))
{
    setObjectName(QStringLiteral("favoritesWindow"));
    setWindowTitle(qtTrId("favorites_window"));
    emptyState->showReason(qtTrId("favorites_empty"), qtTrId("mini_main"));
    sidePanel->addSites(siteChoice);
    layOut(makeButtons(), pages());
    makeStatusLine();
    resize(firstSize);
    connect(favoritesTable, &GameTableView::typed, favoritesTable, &QAbstractItemView::keyboardSearch);
}

const ListWindow::Kind& FavouritesWindow::kind()
{
    const auto width
        = [](FavouriteColumn column, int pixels) { return ColumnWidth{static_cast<int>(column), pixels}; };
    static const std::array widths{
        width(FavouriteColumn::Name, 112),    width(FavouriteColumn::Title, 200),
        width(FavouriteColumn::Titlejp, 140), width(FavouriteColumn::Year, 56),
        width(FavouriteColumn::Maker, 100),   width(FavouriteColumn::Option, 96),
        width(FavouriteColumn::Times, 72),
    };
    static const Kind kind{"favoritesTable",
                           textKey("favorites_list"),
                           "MainSplitView2",
                           "SecondSplitView2",
                           "favoritesCount",
                           textKey("favorites_count"),
                           textKey("favorites_count_some"),
                           keys::FavoritesWindowSplit,
                           keys::FavoritesWindowSplit2,
                           keys::FavoritesWindowColumns,
                           widths};
    return kind;
}

Bar* FavouritesWindow::makeButtons()
{
    Bar* bar = makeToolRow();
    editButton = toolButton(QStringLiteral("edit"), qtTrId("favorites_edit"));
    removeButton = toolButton(QStringLiteral("remove"), qtTrId("favorites_remove"));
    recentChip = new ChipButton(qtTrId("favorites_recent"));
    recentChip->setObjectName(QStringLiteral("recentChip"));
    recentChip->setAccessibleName(recentChip->text());
    searchField = new SearchField;
    searchField->setObjectName(QStringLiteral("titleSearchField2"));
    searchField->setMinimumWidth(leastField);
    searchField->setMaximumWidth(mostField);
    miniButton = toolButton(QStringLiteral("mini"), qtTrId("favorites_mini"));
    mainButton = toolButton(QStringLiteral("list"), qtTrId("mini_main"));

    QHBoxLayout* layout = bar->row();
    layout->addWidget(editButton);
    layout->addWidget(removeButton);
    layout->addSpacing(8);
    layout->addWidget(recentChip);
    layout->addStretch(1);
    layout->addWidget(searchField, 2);
    layout->addWidget(miniButton);
    layout->addWidget(mainButton);
    return bar;
}

void FavouritesWindow::makeStatusLine()
{
    m_unsaved->setText(qtTrId("favorites_unsaved"));
    m_unsaved->setProperty("role", QStringLiteral("notice"));
    saveButton = statusButton("favoritesSaveButton", qtTrId("favorites_save"));
    statusBar()->addWidget(countLabel());
    statusBar()->addWidget(m_unsaved);
    statusBar()->addWidget(saveButton);
    statusBar()->addWidget(message(), 1);
    showUnsaved(false);
}

void FavouritesWindow::takeMenus(const QMenuBar& from)
{
    for (QAction* action : from.actions())
        menuBar()->addAction(action);
}

void FavouritesWindow::showCount(std::size_t shown, std::size_t all)
{
    ListWindow::showCount(shown, all);
    emptyState->showReason(qtTrId(all == 0            ? textKey("favorites_empty")
                                      : m_isSearching ? textKey("favorites_none_found")
                                                      : textKey("favorites_none_recent")),
                           all == 0 ? qtTrId("mini_main") : qtTrId("main_showall"));
}

// What an empty search field does not take: back to the list.
void FavouritesWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && searchField->hasFocus())
        favoritesTable->setFocus();
    else
        ListWindow::keyPressEvent(event);
}

void FavouritesWindow::showUnsaved(bool unsaved)
{
    m_unsaved->setVisible(unsaved);
    saveButton->setVisible(unsaved);
}

} // namespace tessera
