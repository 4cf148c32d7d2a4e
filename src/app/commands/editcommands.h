#pragma once

#include <QObject>

class QAction;
class QUndoStack;

namespace tessera {

class Catalogue;
class CatalogueRebuild;
class GameListController;
class KeyCommands;
class UCAppController;

/// The commands of the Edit menu that act on the list of the key window, and on what was edited there.
class EditCommands : public QObject
{
    Q_OBJECT

public:
    EditCommands(KeyCommands& keys, Catalogue& catalogue, const CatalogueRebuild& rebuild,
                 GameListController& list, UCAppController& favorites, QObject* parent = nullptr);

    /// They are dim while there is nothing to undo or redo in the key window; its stack is one of these.
    void follow(QAction& undo, QAction& redo, const QList<QUndoStack*>& stacks);

public Q_SLOTS:
    void undo();
    void redo();
    void editCell();
    /// What is selected in the text that has the focus, or in the list.
    void copySelection();

private:
    QUndoStack* editedStack();
    void commitCells();

    KeyCommands& m_keys;
    Catalogue& m_catalogue;
    const CatalogueRebuild& m_rebuild;
    GameListController& m_list;
    UCAppController& m_favourites;
};

} // namespace tessera
