#include "tools/ui/rowslist.h"

#include "tools/ui/rowsmodel.h"
#include "widgets/named.h"

#include <QHeaderView>
#include <QLabel>
#include <QResizeEvent>

namespace tessera {

namespace {

constexpr int lineHeight = 24;
constexpr int stateWidth = 140;
constexpr int emptyMargin = 32;

} // namespace

RowsList::RowsList(RowsModel& model, QWidget* parent)
    : QTableView(parent)
    , m_empty(withRole("dim", new QLabel(viewport())))
{
    setModel(&model);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setTextElideMode(Qt::ElideMiddle);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(lineHeight);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setSectionResizeMode(RowsModel::NameColumn, QHeaderView::Stretch);
    horizontalHeader()->setSectionResizeMode(RowsModel::StateColumn, QHeaderView::Fixed);
    setColumnWidth(RowsModel::StateColumn, stateWidth);
    horizontalHeader()->setSortIndicatorClearable(true);
    dropSort();
    setSortingEnabled(true);

    m_empty->setAlignment(Qt::AlignCenter);
    m_empty->setWordWrap(true);
    m_empty->setAttribute(Qt::WA_TransparentForMouseEvents);
    connect(&model, &QAbstractItemModel::modelReset, this, &RowsList::showEmptyText);
    connect(this, &QTableView::activated, this, [this, &model](const QModelIndex& index) {
        Q_EMIT opened(QString::fromStdString(model.visible(index.row()).name));
    });
}

void RowsList::setEmptyText(const QString& text)
{
    m_empty->setText(text);
}

QString RowsList::emptyText() const
{
    return m_empty->text();
}

void RowsList::setNameWidth(int width)
{
    horizontalHeader()->setSectionResizeMode(RowsModel::NameColumn, QHeaderView::Interactive);
    horizontalHeader()->setSectionResizeMode(RowsModel::StateColumn, QHeaderView::Stretch);
    setColumnWidth(RowsModel::NameColumn, width);
}

void RowsList::dropSort()
{
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
}

void RowsList::showEmptyText()
{
    m_empty->setVisible(static_cast<const RowsModel*>(model())->size() == 0);
}

void RowsList::resizeEvent(QResizeEvent* event)
{
    QTableView::resizeEvent(event);
    m_empty->setGeometry(viewport()->rect().adjusted(emptyMargin, 0, -emptyMargin, 0));
}

} // namespace tessera
