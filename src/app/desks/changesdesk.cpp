#include "app/desks/changesdesk.h"

#include "app/windows/mainwindow.h"
#include "tools/ui/changeswindow.h"

#include <QPushButton>

namespace tessera {

ChangesDesk::ChangesDesk(MainWindow& window, QObject* parent)
    : QObject(parent)
    , m_mainWindow(window)
{
    connect(window.changesButton, &QPushButton::clicked, this, &ChangesDesk::showChanges);
}

ChangesDesk::~ChangesDesk() = default;

ChangesWindow& ChangesDesk::window()
{
    if (!m_window) {
        m_window = std::make_unique<ChangesWindow>();
        connect(m_window.get(), &ChangesWindow::opened, this, &ChangesDesk::opened);
    }
    return *m_window;
}

void ChangesDesk::takeComparison(const CatalogueComparison& comparison)
{
    m_comparison = comparison;
    m_mainWindow.changesButton->setVisible(!comparison.changes.empty());
    if (m_window && m_window->isVisible())
        showChanges();
}

void ChangesDesk::showChanges()
{
    window().show(m_comparison);
}

} // namespace tessera
