#include "favourites/ui/favouriteediting.h"

#include "favourites/ui/favouriteeditor.h"
#include "favourites/ui/favouritestablemodel.h"
#include "favourites/ui/ucappcontroller.h"

#include <QPushButton>

namespace tessera {

FavouriteEditing::FavouriteEditing(Favourites& favourites, UCAppController& controller,
                                   std::function<QString(const QString& name)> commandLine, QObject* parent)
    : QObject(parent)
    , m_favourites(favourites)
    , m_controller(controller)
    , m_commandLine(std::move(commandLine))
    , m_editor(std::make_unique<FavouriteEditor>())
{
    connect(&controller, &UCAppController::selectionChanged, this, &FavouriteEditing::showSelection);
    connect(&controller, &UCAppController::commitRequested, this, &FavouriteEditing::commitEditing);
    connect(m_editor.get(), &FavouriteEditor::edited, &favourites, &Favourites::setValue);
    connect(m_editor->removeButton, &QPushButton::clicked, &controller,
            &UCAppController::removeFavoritesTable);
    connect(m_editor->previousButton, &QPushButton::clicked, this, [this] { selectNeighbour(-1); });
    connect(m_editor->nextButton, &QPushButton::clicked, this, [this] { selectNeighbour(1); });
    showSelection();
}

FavouriteEditing::~FavouriteEditing() = default;

void FavouriteEditing::commitEditing()
{
    m_editor->commit();
}

void FavouriteEditing::editRecord()
{
    m_editor->bringForward();
    showSelection();
}

void FavouriteEditing::showSelection()
{
    const auto favourite = m_controller.selection().first();
    m_editor->show(favourite, m_favourites);
    const bool isShown = favourite && m_editor->isVisible();
    m_editor->showCommand(isShown ? m_commandLine(m_favourites.value(*favourite, FavouriteKey::Name))
                                  : QString());
}

void FavouriteEditing::selectNeighbour(int step)
{
    const int row = m_controller.selection().firstRow() + step;
    if (row >= 0 && row < m_controller.model()->rowCount())
        m_controller.selection().selectRow(row);
}

} // namespace tessera
