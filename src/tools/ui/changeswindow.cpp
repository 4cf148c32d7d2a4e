#include "tools/ui/changeswindow.h"

#include "core/message.h"
#include "core/texts.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "widgets/bringforward.h"
#include "widgets/closekeys.h"
#include "widgets/named.h"

#include <QLabel>
#include <QLineEdit>
#include <QTabBar>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr QSize usualSize(720, 560);
constexpr int margin = 18;
constexpr int gap = 12;
constexpr int nameWidth = 190;

// The kind of the tab with the favourites: numbered behind the real ones.
constexpr int favourites = MachineChange::kindCount;
constexpr std::array<const char*, MachineChange::kindCount> titles{
    textKey("changes_added"), textKey("changes_gone"), textKey("changes_renamed"), textKey("changes_status")};

bool belongsTo(const MachineChange& change, int kind)
{
    return kind == favourites ? change.isFavourite : static_cast<int>(change.kind) == kind;
}

} // namespace

ChangesWindow::ChangesWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , summary(new QLabel(this))
    , kinds(named("kinds", new QTabBar(this), qtTrId("changes_title")))
    , filterField(named("changesFilter", new QLineEdit(this), qtTrId("existence_filter")))
    , rows(new RowsModel({qtTrId("changes_set"), qtTrId("changes_change")}, this))
    , changes(named("changes", new RowsList(*rows, this), qtTrId("changes_title")))
{
    setObjectName(QStringLiteral("changesWindow"));
    setWindowTitle(qtTrId("changes_title"));
    summary->setWordWrap(true);
    kinds->setExpanding(false);
    kinds->setDrawBase(false);
    filterField->setPlaceholderText(qtTrId("existence_filter"));
    filterField->setClearButtonEnabled(true);
    changes->setEmptyText(qtTrId("changes_none"));
    changes->setNameWidth(nameWidth);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(gap);
    layout->addWidget(summary);
    layout->addWidget(kinds);
    layout->addWidget(filterField);
    layout->addWidget(changes, 1);
    connect(kinds, &QTabBar::currentChanged, this, &ChangesWindow::showKind);
    connect(filterField, &QLineEdit::textChanged, rows, &RowsModel::setFilter);
    connect(changes, &RowsList::opened, this, &ChangesWindow::opened);
    closeByKeyboard(*this);
    resize(usualSize);
}

void ChangesWindow::show(const CatalogueComparison& comparison)
{
    m_comparison = comparison;
    summary->setText(comparisonSummary(comparison));
    {
        const QSignalBlocker onceAtTheEnd(kinds);
        while (kinds->count() > 0)
            kinds->removeTab(0);
        addTab(textKey("changes_favourites_tab"), favourites, comparison.favourites);
        for (int kind = 0; kind < favourites; ++kind) {
            const auto place = static_cast<std::size_t>(kind);
            addTab(titles[place], kind, comparison.counts[place]);
        }
    }
    kinds->setVisible(kinds->count() > 0);
    filterField->setVisible(kinds->count() > 0);
    filterField->clear();
    showKind();
    bringForward(*this);
}

void ChangesWindow::addTab(const char* key, int kind, std::size_t count)
{
    if (count == 0)
        return;
    const int tab = kinds->addTab(qtTrId(key).arg(numberText(count)));
    kinds->setTabData(tab, kind);
}

// Among the favourites are changes of every kind.
void ChangesWindow::showKind()
{
    const int kind = kinds->tabData(kinds->currentIndex()).toInt();
    std::vector<RowsModel::Row> shown;
    for (const MachineChange& change : m_comparison.changes) {
        if (belongsTo(change, kind))
            shown.push_back({change.name, changeText(change, kind == favourites)});
    }
    changes->dropSort();
    rows->setRows(std::move(shown));
}

} // namespace tessera
