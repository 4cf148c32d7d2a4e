#include "bios/ui/biospanel.h"

#include "bios/ui/biosmodel.h"
#include "widgets/bar.h"
#include "widgets/closekeys.h"
#include "widgets/myscrollers.h"
#include "widgets/named.h"
#include "widgets/toolbutton.h"

#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr QSize firstSize(560, 620);
constexpr int iconSize = 32;
constexpr int nameWidth = 300;
constexpr int biosWidth = 110;

/// The tree of the list. From cell to cell of a row, then to the next row, goes Tab in an editor: a new entry
/// is filled in without the mouse.
class BiosView : public QTreeView
{
protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override
    {
        const QModelIndex current = currentIndex();
        if ((action != MoveNext && action != MovePrevious) || !current.isValid())
            return QTreeView::moveCursor(action, modifiers);
        const bool isForward = action == MoveNext;
        const QModelIndex beside = current.siblingAtColumn(current.column() + (isForward ? 1 : -1));
        if (beside.isValid())
            return beside;
        const QModelIndex row = isForward ? indexBelow(current) : indexAbove(current);
        return row.siblingAtColumn(isForward ? 0 : model()->columnCount() - 1);
    }
};

} // namespace

BiosPanel::BiosPanel(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , treeController_list(new BiosModel(this))
    , biosView(named("biosView", new BiosView, qtTrId("bios_title")))
{
    setObjectName(QStringLiteral("panel_bios"));
    setWindowTitle(qtTrId("bios_title"));
    biosView->setModel(treeController_list);
    biosView->setEditTriggers(QAbstractItemView::EditKeyPressed);
    // A double click chooses.
    biosView->setExpandsOnDoubleClick(false);
    biosView->setUniformRowHeights(true);
    biosView->setVerticalScrollBar(new MyScrollers(Qt::Vertical));
    biosView->header()->resizeSection(BiosModel::Name, nameWidth);
    biosView->header()->resizeSection(BiosModel::Bios, biosWidth);

    auto* layout = edgeToEdge<QVBoxLayout>(this, 0);
    layout->addWidget(makeToolRow());
    layout->addWidget(biosView, 1);
    layout->addWidget(makeFoot());
    closeByKeyboard(*this);
    resize(firstSize);
}

QWidget* BiosPanel::makeToolRow()
{
    auto* row = new Bar(Bar::Place::Top);
    addButton = toolButton(QStringLiteral("add"), qtTrId("bios_add"));
    removeButton = toolButton(QStringLiteral("remove"), qtTrId("bios_remove"));
    gameButton = named("gameButton", new QPushButton(qtTrId("bios_of_game")));
    gameButton->setToolTip(qtTrId("bios_of_game_tip"));
    rebuildButton = named("rebuildBiosButton", new QPushButton(qtTrId("bios_rebuild")));
    rebuildButton->setToolTip(qtTrId("bios_rebuild_tip"));
    QHBoxLayout* layout = row->row();
    layout->addWidget(addButton);
    layout->addWidget(removeButton);
    layout->addStretch(1);
    layout->addWidget(gameButton);
    layout->addWidget(rebuildButton);
    return row;
}

QWidget* BiosPanel::makeFoot()
{
    auto* foot = new Bar(Bar::Place::Foot);
    image_icon = named("image_icon", new QLabel);
    image_icon->setFixedSize(iconSize, iconSize);
    image_icon->setAlignment(Qt::AlignCenter);
    text_infomation = named("text_infomation", withRole("dim", new QLabel));
    text_infomation->setTextFormat(Qt::PlainText);
    text_infomation->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    QHBoxLayout* layout = foot->row();
    layout->setSpacing(12);
    layout->addWidget(image_icon);
    text_setting = named("text_setting", new QLabel);
    text_setting->setTextFormat(Qt::PlainText);
    layout->addWidget(text_infomation, 1);
    layout->addWidget(text_setting);
    return foot;
}

void BiosPanel::expandAll()
{
    // Rows are measured now, once for all of them: as the style sheet has them, shown or not.
    biosView->ensurePolished();
    biosView->expandAll();
    biosView->scrollToTop();
}

void BiosPanel::setAsking(bool asking)
{
    gameButton->setEnabled(!asking);
    rebuildButton->setEnabled(!asking);
    addButton->setEnabled(!asking);
    biosView->setEditTriggers(asking ? QAbstractItemView::NoEditTriggers : QAbstractItemView::EditKeyPressed);
}

void BiosPanel::showSetting(const QString& title)
{
    text_setting->setText(title.isEmpty() ? QString() : qtTrId("bios_set_now").arg(title));
}

void BiosPanel::showEvent(QShowEvent* event)
{
    biosView->setFocus();
    QWidget::showEvent(event);
}

} // namespace tessera
