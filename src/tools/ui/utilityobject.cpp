#include "tools/ui/utilityobject.h"

#include "catalogue/storelayout.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"
#include "tools/conversion.h"
#include "tools/titletable.h"
#include "tools/ui/conversionpage.h"
#include "tools/ui/utilitywindow.h"
#include "widgets/bringforward.h"

#include <QCheckBox>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

namespace {

// The fields' tags; those in between belong to other pages.
constexpr int listxmlTag = 6;
constexpr int titlesTag = 7;

} // namespace

UtilityObject::UtilityObject(Desktop& desktop, DefaultsController& defaults, QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_defaults(defaults)
    , m_window(std::make_unique<UtilityWindow>(defaults))
{
    const ConversionPage& page = *m_window->conversionPage;
    connect(m_window.get(), &UtilityWindow::closed, this, &UtilityObject::windowWillClose);
    connect(m_window->button_convert, &QPushButton::clicked, this, &UtilityObject::xmloutputAction);
    connect(page.button_listxml, &QPushButton::clicked, this, &UtilityObject::selectlistxml);
    connect(page.button_mame32jp, &QPushButton::clicked, this, &UtilityObject::selectlocalize);
    connect(page.reveal_listxml, &QToolButton::clicked, this, [this] { show_file_in_finder2(listxmlTag); });
    connect(page.reveal_mame32jp, &QToolButton::clicked, this, [this] { show_file_in_finder2(titlesTag); });
}

UtilityObject::~UtilityObject() = default;

// Painted at once, since a conversion keeps the event loop waiting.
void UtilityObject::inform(const QString& text)
{
    m_window->infoTextField->setText(text);
    m_window->infoTextField->repaint();
}

void UtilityObject::refuse(const QString& text)
{
    inform(text);
    m_desktop.beep();
}

void UtilityObject::xmloutputAction()
{
    inform(conversiontexts::started);
    if (!QFileInfo::exists(pathOf(listxmlTag)))
        return refuse(conversiontexts::noListxml);
    if (!QFileInfo::exists(pathOf(titlesTag)))
        return refuse(conversiontexts::noTitles);
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
        return refuse(list.error().text());
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
        inform(QString(conversiontexts::notWritten).arg(*path, written.error().arguments.last()));
        return;
    }
    inform(conversionReport(list.games));
    m_desktop.playSound(QStringLiteral("st_ovenbell"));
}

QString UtilityObject::issueuuid() const
{
    return QString::fromStdString(storelayout::newUuid());
}

void UtilityObject::indicator_start()
{
    m_window->progressInd->setRange(0, 0);
    m_window->progressInd->repaint();
}

void UtilityObject::indicator_stop()
{
    m_window->progressInd->setRange(0, 100);
    m_window->progressInd->reset();
}

QString UtilityObject::openPanelpath(bool chooseFile, bool chooseDirect)
{
    return m_desktop.openPanel({chooseFile, chooseDirect, {}, {}}).value_or(QString());
}

void UtilityObject::select(QLineEdit& field, const ChosenKey& key)
{
    const QString path = openPanelpath(true, false);
    if (path.isEmpty())
        return;
    field.setText(path);
    m_defaults.setText(key, path);
    UserDefaults& defaults = m_defaults.defaults();
    if (!defaults.synchronize())
        Q_EMIT statusMessage(Failure{"failure_settings", {defaults.path()}}.text());
}

void UtilityObject::selectlistxml()
{
    select(*m_window->conversionPage->listxmlTextField, keys::listxmlPath);
}

void UtilityObject::selectlocalize()
{
    select(*m_window->conversionPage->mame32jpTextField, keys::localizePath);
}

QString UtilityObject::pathOf(int tag) const
{
    switch (tag) {
    case listxmlTag:
        return m_window->conversionPage->listxmlTextField->text();
    case titlesTag:
        return m_window->conversionPage->mame32jpTextField->text();
    default:
        return QString();
    }
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
    inform(QString());
}

} // namespace tessera
