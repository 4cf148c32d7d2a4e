#include "catalogue/ui/gametableview.h"

#include "catalogue/ui/familydelegate.h"
#include "platform/defaultscontroller.h"
#include "widgets/myscrollers.h"
#include "widgets/sortheader.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMouseEvent>

#include <algorithm>

namespace tessera {

namespace {

// A blank alone selects, as in any list.
bool isTyped(const QKeyEvent* event)
{
    return !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        && !event->text().isEmpty() && event->text().at(0).isPrint() && event->text() != QStringLiteral(" ");
}

} // namespace

GameTableView::GameTableView(QWidget* parent)
    : QTableView(parent)
    , m_texts(new MatchDelegate(this))
    , m_families(new FamilyDelegate(this))
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(EditKeyPressed);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollBar(new MyScrollers(Qt::Vertical));
    setHorizontalScrollBar(new MyScrollers(Qt::Horizontal));
    setTabKeyNavigation(false);
    setIconSize(QSize(14, 14));
    // Rows of one fixed height: nothing is asked of 45,000 records before the first paint.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setMinimumSectionSize(8);
    verticalHeader()->hide();
    setHorizontalHeader(new SortHeader);
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setStretchLastSection(true);
    setSortingEnabled(true);
    horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(horizontalHeader(), &QWidget::customContextMenuRequested, this, &GameTableView::showColumnsMenu);
    setItemDelegate(m_texts);
    setItemDelegateForColumn(0, m_families);
    connect(m_families, &FamilyDelegate::toggled, this, &GameTableView::familyToggled);
    // Of the left button only: see mouseDoubleClickEvent().
    connect(this, &QTableView::doubleClicked, this, &GameTableView::doubleAction);
}

void GameTableView::followRowHeight(const DefaultsController& defaults)
{
    const auto apply = [this, &defaults] {
        // The setting may have half a pixel (13.5), rows have whole ones.
        const int height = qBound(8, qRound(defaults.number(keys::rowHeight)), 400);
        if (verticalHeader()->defaultSectionSize() != height)
            verticalHeader()->setDefaultSectionSize(height);
    };
    apply();
    connect(&defaults, &DefaultsController::changed, this, apply);
}

void GameTableView::showMatches(const Matches& matches)
{
    m_texts->setMatches(matches);
    m_families->setMatches(matches);
    viewport()->update();
}

void GameTableView::commitOpenEditor()
{
    for (QLineEdit* editor : viewport()->findChildren<QLineEdit*>()) {
        commitData(editor);
        closeEditor(editor, QAbstractItemDelegate::NoHint);
    }
}

// As they stand beside each other.
QList<int> GameTableView::shownColumns() const
{
    const QHeaderView* header = horizontalHeader();
    QList<int> columns;
    for (int place = 0; place < header->count(); ++place) {
        const int column = header->logicalIndex(place);
        if (!header->isSectionHidden(column))
            columns << column;
    }
    return columns;
}

// The selection model's own list of rows takes a time that grows with the square of its ranges.
std::vector<RowRange> GameTableView::selectedRanges() const
{
    std::vector<RowRange> ranges;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        if (range.isValid())
            ranges.push_back({range.top(), range.bottom()});
    }
    std::ranges::sort(ranges, {}, &RowRange::first);
    return ranges;
}

void GameTableView::copySelection() const
{
    const QList<int> columns = shownColumns();
    QString text;
    for (const RowRange& range : selectedRanges()) {
        for (int row = range.first; row <= range.last; ++row) {
            for (const int column : columns) {
                // A value's own tabs and line ends would be taken for ours.
                const QString value = model()->index(row, column).data(Qt::EditRole).toString();
                text += value.simplified() + (column == columns.last() ? u'\n' : u'\t');
            }
        }
    }
    if (!text.isEmpty())
        QGuiApplication::clipboard()->setText(text);
}

void GameTableView::fillColumnsMenu(QMenu& menu)
{
    menu.clear();
    const QList<int> shown = shownColumns();
    for (int column = 0; column < model()->columnCount(); ++column) {
        QAction* action = menu.addAction(model()->headerData(column, Qt::Horizontal).toString());
        action->setCheckable(true);
        action->setChecked(shown.contains(column));
        action->setEnabled(shown != QList<int>{column});
        connect(
            action, &QAction::toggled, horizontalHeader(),
            [header = horizontalHeader(), column](bool isOn) { header->setSectionHidden(column, !isOn); });
    }
}

void GameTableView::showColumnsMenu(QPoint place)
{
    QMenu menu;
    fillColumnsMenu(menu);
    menu.exec(horizontalHeader()->mapToGlobal(place));
}

// To the right opens, to the left folds.
bool GameTableView::isFamilyKey(const QKeyEvent* event) const
{
    const QModelIndex current = currentIndex();
    if (event->modifiers() != Qt::NoModifier || current.data(FamilyDelegate::ClonesRole).toInt() == 0)
        return false;
    return event->key() == (current.data(FamilyDelegate::IsOpenRole).toBool() ? Qt::Key_Left : Qt::Key_Right);
}

void GameTableView::setModel(QAbstractItemModel* model)
{
    QTableView::setModel(model);
    // A reset drops the selection without a word from the selection model.
    connect(model, &QAbstractItemModel::modelReset, this, &GameTableView::selectionDidChange);
    // Rows that change places stay selected, and the selection model has nothing to tell. But the first one
    // counts; and one that stood for its family goes, where another one stands for it in the new order.
    connect(model, &QAbstractItemModel::layoutAboutToBeChanged, this, [this] {
        m_firstSelected = firstSelected();
        m_rowsSelected = rowsSelected();
    });
    connect(model, &QAbstractItemModel::layoutChanged, this, [this] {
        if (std::exchange(m_firstSelected, {}) != firstSelected() || m_rowsSelected != rowsSelected())
            Q_EMIT selectionDidChange();
    });
}

int GameTableView::rowsSelected() const
{
    int rows = 0;
    for (const RowRange& range : selectedRanges())
        rows += range.last - range.first + 1;
    return rows;
}

QModelIndex GameTableView::firstSelected() const
{
    const std::vector<RowRange> selected = selectedRanges();
    return selected.empty() ? QModelIndex() : model()->index(selected.front().first, 0);
}

// The toolkit tells of rows only, and of any button: another one's second press is one like the first. Where
// it was is asked before a game is started by it, as the rows may be others afterwards.
void GameTableView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return mousePressEvent(event);
    const bool isBeneath = !indexAt(event->position().toPoint()).isValid();
    QTableView::mouseDoubleClickEvent(event);
    if (isBeneath)
        Q_EMIT doubleAction();
}

void GameTableView::keyPressEvent(QKeyEvent* event)
{
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isEditing = state() == EditingState;
    if (enter && !isEditing && event->modifiers() == Qt::NoModifier)
        Q_EMIT returnAction();
    else if (!isEditing && isFamilyKey(event))
        Q_EMIT familyToggled(currentIndex().row());
    else if (!isEditing && isTyped(event))
        Q_EMIT typed(event->text());
    else
        QTableView::keyPressEvent(event);
}

// What an input method composes or commits is typed, too.
void GameTableView::inputMethodEvent(QInputMethodEvent* event)
{
    if (state() == EditingState)
        QTableView::inputMethodEvent(event);
    else if (!event->preeditString().isEmpty() || !event->commitString().isEmpty())
        Q_EMIT composed(event);
}

void GameTableView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QTableView::selectionChanged(selected, deselected);
    Q_EMIT selectionDidChange();
}

// Else the modifiers of the command's own shortcut would count, as they do for a click.
QItemSelectionModel::SelectionFlags GameTableView::selectionCommand(const QModelIndex& index,
                                                                    const QEvent* event) const
{
    return m_selectsAlone ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
                          : QTableView::selectionCommand(index, event);
}

void GameTableView::selectRowAlone(int row)
{
    m_selectsAlone = true;
    selectRow(row);
    m_selectsAlone = false;
}

} // namespace tessera
