#include "bios/ui/biosview.h"

namespace tessera {

QModelIndex BiosView::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers)
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

} // namespace tessera
