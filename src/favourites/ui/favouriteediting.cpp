#include "favourites/ui/favouriteediting.h"

#include "favourites/ui/favouriteeditor.h"
#include "favourites/ui/favouritestablemodel.h"
#include "favourites/ui/ucappcontroller.h"

#include <QPushButton>

namespace tessera {

FavouriteEditing::FavouriteEditing(Favourites& favourites, UCAppController& controller, QObject* parent)
    : QObject(parent)
    , m_favourites(favourites)
    , m_controller(controller)
{
    connect(&controller, &UCAppController::selectionChanged, this, &FavouriteEditing::showSelection);
    connect(&controller, &UCAppController::commitRequested, this, &FavouriteEditing::commitEditing);
}

FavouriteEditing::~FavouriteEditing() = default;

FavouriteEditor& FavouriteEditing::editor()
{
    if (m_editor)
        return *m_editor;
    m_editor = std::make_unique<FavouriteEditor>();
    connect(m_editor.get(), &FavouriteEditor::edited, &m_favourites, &Favourites::setValue);
    connect(m_editor->removeButton, &QPushButton::clicked, &m_controller, &UCAppController::removeShown);
    connect(m_editor->previousButton, &QPushButton::clicked, this, [this] { selectNeighbour(-1); });
    connect(m_editor->nextButton, &QPushButton::clicked, this, [this] { selectNeighbour(1); });
    showSelection();
    Q_EMIT windowMade(*m_editor);
    return *m_editor;
}

void FavouriteEditing::commitEditing()
{
    if (m_editor)
        m_editor->commit();
}

void FavouriteEditing::editRecord()
{
    editor().bringForward();
    showSelection();
}

void FavouriteEditing::showSelection()
{
    if (!m_editor)
        return;
    const auto favourite = m_controller.firstSelected();
    m_editor->show(favourite, m_favourites);
    if (favourite && m_editor->isVisible())
        Q_EMIT commandWanted(*m_editor, m_favourites.value(*favourite, FavouriteKey::Name));
    else
        m_editor->showCommand(QString());
}

void FavouriteEditing::selectNeighbour(int step)
{
    const int row = m_controller.firstRow() + step;
    if (row >= 0 && row < m_controller.model()->rowCount())
        m_controller.selectRow(row);
}

} // namespace tessera
