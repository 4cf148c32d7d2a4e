#include "tools/ui/utilityobject.h"

#include "catalogue/storelayout.h"
#include "platform/desktop.h"
#include "tools/ui/conversiontool.h"
#include "tools/ui/existencetool.h"
#include "tools/ui/favouritestool.h"
#include "tools/ui/scripttool.h"
#include "tools/ui/separationtool.h"
#include "tools/ui/toolpage.h"
#include "tools/ui/utilitywindow.h"
#include "tools/ui/verificationtool.h"
#include "tools/ui/workbench.h"
#include "widgets/bringforward.h"
#include "widgets/deletionfocusring.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QStackedWidget>
#include <QAbstractButton>

namespace tessera {

UtilityObject::UtilityObject(Desktop& desktop, DefaultsController& defaults, UtilityHost& host,
                             QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_window(std::make_unique<UtilityWindow>(defaults))
    , m_workbench(std::make_unique<Workbench>(desktop, defaults, *m_window->foot))
    , m_conversion(std::make_unique<ConversionTool>(*m_window->conversionPage, *m_workbench, host))
    , m_existence(std::make_unique<ExistenceTool>(*m_window->existencePage, *m_workbench, host))
    , m_separation(std::make_unique<SeparationTool>(*m_window->separationPage, *m_workbench))
    , m_verification(std::make_unique<VerificationTool>(*m_window->verificationPage, *m_workbench, host))
    , m_favourites(std::make_unique<FavouritesTool>(*m_window->favouritesPage, *m_workbench, host))
    , m_scripts(std::make_unique<ScriptTool>(*m_window->scriptPage, *m_workbench, host))
{
    connect(m_window.get(), &UtilityWindow::closing, this, &UtilityObject::close);
    connect(m_workbench.get(), &Workbench::statusMessage, this, &UtilityObject::statusMessage);
    connect(m_workbench.get(), &Workbench::statusWithdrawn, this, &UtilityObject::statusWithdrawn);
    for (const ToolPage* page : m_window->findChildren<ToolPage*>()) {
        connect(page, &ToolPage::pathWanted, m_workbench.get(), &Workbench::choose);
        connect(page, &ToolPage::revealWanted, this, &UtilityObject::reveal);
    }
    takeFocusRings();
}

UtilityObject::~UtilityObject() = default;

void UtilityObject::takeFocusRings()
{
    for (QLineEdit* field : m_window->findChildren<QLineEdit*>())
        DeletionFocusRing::takeRing(*field);
    for (QAbstractButton* button : m_window->findChildren<QAbstractButton*>())
        DeletionFocusRing::takeRing(*button);
    for (QComboBox* popUp : m_window->findChildren<QComboBox*>())
        DeletionFocusRing::takeRing(*popUp);
    DeletionFocusRing::takeRing(*m_window->utilityTabView);
}

QString UtilityObject::issueuuid() const
{
    return QString::fromStdString(storelayout::newUuid());
}

void UtilityObject::show_file_in_finder2(int tag)
{
    const auto index = static_cast<std::size_t>(tag) - 1;
    reveal(index < taggedPaths.size()
               ? m_window->findChild<QLineEdit*>(QLatin1String(taggedPaths[index]->field))->text()
               : QString());
}

void UtilityObject::reveal(const QString& path)
{
    if (!QFileInfo::exists(path) || !m_desktop.reveal(path))
        m_desktop.beep();
}

void UtilityObject::utilityOrderFront()
{
    bringForward(*m_window);
}

void UtilityObject::close(QCloseEvent* event)
{
    if (m_workbench->mayBeAbandoned())
        windowWillClose();
    else
        event->ignore();
}

void UtilityObject::windowWillClose()
{
    m_workbench->abandon();
    m_existence->clear_reportController();
    m_separation->clear_separatorController();
    m_workbench->inform(QString());
}

} // namespace tessera
