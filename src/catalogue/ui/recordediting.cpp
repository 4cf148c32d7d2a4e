#include "catalogue/ui/recordediting.h"

#include "catalogue/catalogue.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/recordeditor.h"
#include "platform/desktop.h"

#include <QPushButton>

namespace tessera {

RecordEditing::RecordEditing(Catalogue& catalogue, Desktop& desktop, GameListController& list,
                             QObject* parent)
    : QObject(parent)
    , m_catalogue(catalogue)
    , m_desktop(desktop)
    , m_list(list)
{
    connect(&list, &GameListController::selectionChanged, this, &RecordEditing::showSelection);
    connect(&catalogue, &Catalogue::recordChanged, this, &RecordEditing::showSelection);
}

RecordEditing::~RecordEditing() = default;

RecordEditor& RecordEditing::editor()
{
    if (m_editor)
        return *m_editor;
    m_editor = std::make_unique<RecordEditor>();
    connect(m_editor.get(), &RecordEditor::edited, &m_catalogue, &Catalogue::setValue);
    connect(m_editor->editRemove, &QPushButton::clicked, this, &RecordEditing::removeRecord);
    connect(m_editor->previousButton, &QPushButton::clicked, &m_list, [this] { m_list.selectNeighbour(-1); });
    connect(m_editor->nextButton, &QPushButton::clicked, &m_list, [this] { m_list.selectNeighbour(1); });
    showSelection();
    Q_EMIT windowMade(*m_editor);
    return *m_editor;
}

void RecordEditing::setLocked(bool locked)
{
    m_isLocked = locked;
    if (locked && m_editor)
        m_editor->close();
    showSelection();
}

void RecordEditing::commitEditing()
{
    if (m_editor)
        m_editor->commit();
}

void RecordEditing::editRecord()
{
    if (m_isLocked)
        return;
    editor().bringForward();
}

// What is selected at the answer is what was selected at the question: the alert is modal.
void RecordEditing::removeRecord()
{
    std::vector<std::uint32_t> records = m_list.selectedRecords();
    if (records.empty() || m_isLocked)
        return;
    m_desktop.beep();
    Alert alert;
    alert.style = Alert::Style::Warning;
    alert.message = qtTrId("record_remove_Message");
    alert.informative = qtTrId("record_remove_Info");
    alert.buttons = {qtTrId("remove"), qtTrId("cancel")};
    if (m_desktop.runAlert(alert) == 0)
        m_catalogue.remove(std::move(records));
}

void RecordEditing::showSelection()
{
    if (m_editor)
        m_editor->show(m_list.firstSelected(), m_catalogue.records(), !m_isLocked);
}

} // namespace tessera
