#include "info/ui/infosites.h"

#include "info/informationsites.h"
#include "info/ui/infopage.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"

#include <QComboBox>
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
    connect(m_page->infositePop, &QComboBox::activated, this, &InfoSites::infositeAction);
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
    else if (const auto text = siteTemplate(m_defaults.index(keys::Rominfosite),
                                            [this](const ChosenKey& key) { return m_defaults.text(key); }))
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
    const QString host = site != nullptr ? m_defaults.text(*site->host) : QString();
    if (m_page->hostField->text() != host)
        m_page->hostField->setText(host);
}

void InfoSites::storeHost(const QString& host)
{
    if (const InformationSite* site = siteAt(m_defaults.index(keys::Rominfosite)))
        m_defaults.setText(*site->host, host);
}

void InfoSites::storeTemplate(const QString& text)
{
    if (isOwnSite())
        m_defaults.setText(keys::VisitedRomPath, text);
}

void InfoSites::settingChanged(const QString& name)
{
    const bool isOfSite = name.isEmpty() || name == keys::Rominfosite.name
        || name == keys::VisitedRomPath.name || name.startsWith(QLatin1StringView("InfositeHost"));
    if (isOfSite)
        infositeAction();
}

void InfoSites::openROMinfo(const QString& name)
{
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
