#include "catalogue/ui/cataloguesaving.h"

#include "catalogue/catalogue.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/recordediting.h"
#include "platform/desktop.h"

namespace tessera {

CatalogueSaving::CatalogueSaving(Catalogue& catalogue, Desktop& desktop, GameListController& list,
                                 RecordEditing& editing, QObject* parent)
    : QObject(parent)
    , m_catalogue(catalogue)
    , m_desktop(desktop)
    , m_list(list)
    , m_editing(editing)
{
}

void CatalogueSaving::commitEditing()
{
    m_list.commitEditing();
    m_editing.commitEditing();
}

void CatalogueSaving::saveAction()
{
    commitEditing();
    // Nothing is written then: another program may have put a newer catalogue there meanwhile.
    if (!m_catalogue.hasChanges()) {
        Q_EMIT statusMessage(qtTrId("catalogue_save_nothing"));
        return;
    }
    const auto saved = m_catalogue.save();
    if (!saved)
        m_desktop.presentError(saved.error().text(), QString(), {});
    else if (saved->isEmpty())
        Q_EMIT statusMessage(qtTrId("catalogue_saved"));
    else
        Q_EMIT statusMessage(Message{"catalogue_saved_kept", {*saved}}.text());
}

bool CatalogueSaving::saveBeforeQuitting()
{
    if (!m_catalogue.hasChanges())
        return true;
    const auto saved = m_catalogue.save();
    if (saved) {
        logKept(*saved);
        return true;
    }
    if (m_desktop.presentError(saved.error().text(), QString(), {}))
        return false;
    Alert alert;
    alert.message = qtTrId("quit_unsaved_message");
    alert.buttons = {qtTrId("quit_anyway"), qtTrId("cancel")};
    alert.style = Alert::Style::Warning;
    return m_desktop.runAlert(alert) == 0;
}

void CatalogueSaving::saveForSessionEnd()
{
    commitEditing();
    if (!m_catalogue.hasChanges())
        return;
    if (const auto saved = m_catalogue.save())
        logKept(*saved);
    else
        m_desktop.log(saved.error().text());
}

// At the end nobody would see it in the status line.
void CatalogueSaving::logKept(const QString& copy)
{
    if (!copy.isEmpty())
        m_desktop.log(Message{"catalogue_saved_kept", {copy}}.text());
}

} // namespace tessera
