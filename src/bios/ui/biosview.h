#pragma once

#include <QTreeView>

namespace tessera {

/// The tree of the BIOS list. From cell to cell of a row, then to the next row, goes Tab in an editor: a new
/// entry is filled in without the mouse.
class BiosView : public QTreeView
{
    Q_OBJECT

public:
    using QTreeView::QTreeView;

protected:
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
};

} // namespace tessera
