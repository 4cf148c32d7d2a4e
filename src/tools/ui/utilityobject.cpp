#include "tools/ui/utilityobject.h"

#include "catalogue/storelayout.h"
#include "platform/desktop.h"
#include "tools/ui/conversiontool.h"
#include "tools/ui/existencetool.h"
#include "tools/ui/favouritestool.h"
#include "tools/ui/scripttool.h"
#include "tools/ui/separationtool.h"
#include "tools/ui/utilitywindow.h"
#include "tools/ui/verificationtool.h"
#include "tools/ui/workbench.h"
#include "widgets/bringforward.h"
#include "widgets/deletionfocusring.h"

#include <QComboBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QStackedWidget>
#include <QToolButton>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

// A path field of the window, and the button that shows it in the file manager.
struct TaggedField {
    int tag;
    const char* field;
    const char* reveal;
};

constexpr std::array fields{
    TaggedField{1, "listfullTextField2", "reveal_listfull2"},
    TaggedField{2, "rompathTextField2", "reveal_rompath2"},
    TaggedField{3, "rompathTextField1", "reveal_rompath1"},
    TaggedField{4, "listfullTextField1", "reveal_listfull1"},
    TaggedField{5, "movepathTextField", "reveal_movepath"},
    TaggedField{6, "listxmlTextField", "reveal_listxml"},
    TaggedField{7, "mame32jpTextField", "reveal_mame32jp"},
    TaggedField{8, "verifyromsTextField", "reveal_verifyroms"},
    TaggedField{9, "favoritesTextField", "reveal_favorites"},
};

} // namespace

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
    connect(m_window.get(), &UtilityWindow::closed, this, &UtilityObject::windowWillClose);
    m_window->mayClose = [this] { return mayBeAbandoned(); };
    connect(m_workbench.get(), &Workbench::statusMessage, this, &UtilityObject::statusMessage);
    connect(m_workbench.get(), &Workbench::statusWithdrawn, this, &UtilityObject::statusWithdrawn);
    connectReveals();
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

bool UtilityObject::mayBeAbandoned()
{
    return m_workbench->mayBeAbandoned();
}

void UtilityObject::connectReveals()
{
    for (const TaggedField& field : fields) {
        const auto* button = m_window->findChild<QToolButton*>(QLatin1String(field.reveal));
        connect(button, &QToolButton::clicked, this, [this, tag = field.tag] { show_file_in_finder2(tag); });
    }
}

void UtilityObject::xmloutputAction()
{
    m_conversion->xmloutputAction();
}

void UtilityObject::outputAction()
{
    m_conversion->outputAction();
}

QString UtilityObject::issueuuid() const
{
    return QString::fromStdString(storelayout::newUuid());
}

void UtilityObject::indicator_start()
{
    m_workbench->indicator_start();
}

void UtilityObject::indicator_stop()
{
    m_workbench->indicator_stop();
}

QString UtilityObject::openPanelpath(bool chooseFile, bool chooseDirect)
{
    return m_workbench->openPanelpath(chooseFile, chooseDirect);
}

void UtilityObject::selectlistxml()
{
    m_conversion->selectlistxml();
}

void UtilityObject::selectlocalize()
{
    m_conversion->selectlocalize();
}

QString UtilityObject::pathOf(int tag) const
{
    const auto field = std::ranges::find(fields, tag, &TaggedField::tag);
    return field == fields.end() ? QString()
                                 : m_window->findChild<QLineEdit*>(QLatin1String(field->field))->text();
}

void UtilityObject::show_file_in_finder2(int tag)
{
    const QString path = pathOf(tag);
    if (!QFileInfo::exists(path) || !m_desktop.reveal(path))
        m_desktop.beep();
}

void UtilityObject::utilityOrderFront()
{
    bringForward(*m_window);
}

void UtilityObject::windowWillClose()
{
    m_workbench->abandon();
    m_existence->clear_reportController();
    m_separation->clear_separatorController();
    m_workbench->inform(QString());
}

} // namespace tessera
