#include "tools/ui/utilityobject.h"

#include "catalogue/storelayout.h"
#include "platform/desktop.h"
#include "tools/conversion.h"
#include "tools/titletable.h"
#include "tools/ui/conversionpage.h"
#include "tools/ui/existencetool.h"
#include "tools/ui/separationtool.h"
#include "tools/ui/utilitywindow.h"
#include "tools/ui/verificationtool.h"
#include "tools/ui/workbench.h"
#include "widgets/bringforward.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

// The fields' tags; those in between belong to other pages.
constexpr int listxmlTag = 6;
constexpr int titlesTag = 7;

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
    TaggedField{listxmlTag, "listxmlTextField", "reveal_listxml"},
    TaggedField{titlesTag, "mame32jpTextField", "reveal_mame32jp"},
    TaggedField{8, "verifyromsTextField", "reveal_verifyroms"},
};

} // namespace

UtilityObject::UtilityObject(Desktop& desktop, DefaultsController& defaults, QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_window(std::make_unique<UtilityWindow>(defaults))
    , m_workbench(std::make_unique<Workbench>(desktop, defaults, *m_window->foot))
    , m_existence(std::make_unique<ExistenceTool>(*m_window->existencePage, *m_workbench))
    , m_separation(std::make_unique<SeparationTool>(*m_window->separationPage, *m_workbench))
    , m_verification(std::make_unique<VerificationTool>(*m_window->verificationPage, *m_workbench))
{
    const ConversionPage& page = *m_window->conversionPage;
    connect(m_window.get(), &UtilityWindow::closed, this, &UtilityObject::windowWillClose);
    connect(page.button_convert, &QPushButton::clicked, this, &UtilityObject::xmloutputAction);
    connect(page.button_listxml, &QPushButton::clicked, this, &UtilityObject::selectlistxml);
    connect(page.button_mame32jp, &QPushButton::clicked, this, &UtilityObject::selectlocalize);
    connect(m_workbench.get(), &Workbench::statusMessage, this, &UtilityObject::statusMessage);
    connect(m_existence.get(), &ExistenceTool::statusMessage, this, &UtilityObject::statusMessage);
    connectReveals();
}

UtilityObject::~UtilityObject() = default;

void UtilityObject::connectReveals()
{
    for (const TaggedField& field : fields) {
        const auto* button = m_window->findChild<QToolButton*>(QLatin1String(field.reveal));
        connect(button, &QToolButton::clicked, this, [this, tag = field.tag] { show_file_in_finder2(tag); });
    }
}

void UtilityObject::xmloutputAction()
{
    m_workbench->inform(conversiontexts::started);
    if (!QFileInfo::exists(pathOf(listxmlTag)))
        return m_workbench->refuse(conversiontexts::noListxml);
    if (!QFileInfo::exists(pathOf(titlesTag)))
        return m_workbench->refuse(conversiontexts::noTitles);
    indicator_start();
    outputAction();
    indicator_stop();
}

void UtilityObject::outputAction()
{
    const ConversionPage& page = *m_window->conversionPage;
    const ConversionOptions options{page.button_isbios->isChecked(), page.button_ismechanical->isChecked(),
                                    page.button_isdevice->isChecked()};
    const auto list = convertFiles(pathOf(listxmlTag), pathOf(titlesTag), options);
    if (!list)
        return m_workbench->refuse(list.error().text());
    m_desktop.log(conversiontexts::logged);
    save(*list);
}

// After Cancel the information line stays as it is: deliberate, as nothing was written.
void UtilityObject::save(const ConvertedList& list)
{
    const auto path = m_desktop.savePanel(
        {QStringLiteral("Save XMLlist file"), QStringLiteral("Tessera"), {QStringLiteral("xml")}});
    if (!path)
        return;
    if (const auto written = list.text.save(*path); !written) {
        m_desktop.beep();
        m_workbench->inform(
            QString(conversiontexts::notWritten).arg(*path, written.error().arguments.last()));
        return;
    }
    m_workbench->conclude(conversionReport(list.games));
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
    m_workbench->choose(*m_window->conversionPage->listxmlTextField, keys::listxmlPath,
                        Workbench::Choice::File);
}

void UtilityObject::selectlocalize()
{
    m_workbench->choose(*m_window->conversionPage->mame32jpTextField, keys::localizePath,
                        Workbench::Choice::File);
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
