#include "info/ui/infosites.h"

#include "info/informationsites.h"
#include "info/ui/infopage.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"

#include <QLineEdit>
#include <QPushButton>

namespace tessera {

namespace {

const InformationSite* siteAt(int index)
{
    const bool isSite = index >= 0 && index < static_cast<int>(informationSites.size());
    return isSite ? &informationSites[static_cast<std::size_t>(index)] : nullptr;
}

} // namespace

InfoSites::InfoSites(Desktop& desktop, DefaultsController& defaults, QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_defaults(defaults)
{
    connect(&defaults, &DefaultsController::changed, this, &InfoSites::settingChanged);
    infositeAction();
}

InfoPage* InfoSites::makePage()
{
    m_page = new InfoPage(m_defaults);
    connect(m_page->hostField, &QLineEdit::textEdited, this, &InfoSites::storeHost);
    connect(m_page->rominfoTextField, &QLineEdit::textEdited, this, &InfoSites::storeTemplate);
    connect(m_page->urlTextField, &QLineEdit::returnPressed, this, &InfoSites::openURL);
    connect(m_page->openButton, &QPushButton::clicked, this, &InfoSites::openURL);
    showTemplate();
    return m_page;
}

// What the pop-up shows: its item at this position has the own site's title.
bool InfoSites::isOwnSite() const
{
    return m_defaults.index(keys::Rominfosite) == keptSite + 1;
}

void InfoSites::infositeAction()
{
    if (isOwnSite())
        m_template = m_defaults.text(keys::VisitedRomPath);
    else if (const auto text = siteTemplate(m_defaults.index(keys::Rominfosite), settingReader()))
        m_template = *text;
    showTemplate();
}

void InfoSites::showTemplate()
{
    if (!m_page)
        return;
    const InformationSite* site = siteAt(m_defaults.index(keys::Rominfosite));
    m_page->rominfoTextField->setEnabled(isOwnSite());
    if (m_page->rominfoTextField->text() != m_template)
        m_page->rominfoTextField->setText(m_template);
    m_page->hostField->setEnabled(site != nullptr);
    const QString host = site != nullptr ? hostText(site->host, settingReader()) : QString();
    if (m_page->hostField->text().trimmed() != host)
        m_page->hostField->setText(host);
}

void InfoSites::storeHost(const QString& host)
{
    const InformationSite* site = siteAt(m_defaults.index(keys::Rominfosite));
    if (site == nullptr)
        return;
    m_defaults.setText(*site->host.key, host);
    // Else what is cleared would come back.
    if (site->host.former != nullptr && !m_defaults.text(*site->host.former).isEmpty())
        m_defaults.setText(*site->host.former, QString());
}

void InfoSites::storeTemplate(const QString& text)
{
    if (isOwnSite())
        m_defaults.setText(keys::VisitedRomPath, text);
}

void InfoSites::settingChanged(const QString& name)
{
    const bool isOfSite = name.isEmpty() || name == keys::Rominfosite.name
        || name == keys::VisitedRomPath.name || isHostSetting(name);
    if (isOfSite)
        infositeAction();
}

SettingReader InfoSites::settingReader() const
{
    return [this](const ChosenKey& key) { return m_defaults.text(key); };
}

void InfoSites::openROMinfo(const QString& name)
{
    const InformationSite* site = siteAt(m_defaults.index(keys::Rominfosite));
    if (!name.isEmpty() && site != nullptr && hostText(site->host, settingReader()).isEmpty())
        Q_EMIT statusMessage(qtTrId("infosite_no_host").arg(site->number));
    const auto page = name.isEmpty() ? std::nullopt : gamePage(m_template, name);
    if (!page || !m_desktop.openUrl(*page))
        m_desktop.beep();
}

void InfoSites::openURL()
{
    const auto address
        = webAddress(m_page ? m_page->urlTextField->text() : m_defaults.text(keys::VisitedURLPath));
    if (!address || !m_desktop.openUrl(*address))
        m_desktop.beep();
}

} // namespace tessera
