#include "info/ui/infosites.h"

#include "info/informationsites.h"
#include "info/ui/infopage.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"

#include <QLineEdit>
#include <QPushButton>

namespace tessera {

InfoSites::InfoSites(Desktop& desktop, DefaultsController& defaults, QObject* parent)
    : ChosenSite(informationSiteTable, defaults, parent)
    , m_desktop(desktop)
    , m_defaults(defaults)
{
}

InfoPage* InfoSites::makePage()
{
    m_page = new InfoPage(m_defaults);
    setFields(*m_page->hostField, {m_page->rominfoTextField});
    connect(m_page->urlTextField, &QLineEdit::returnPressed, this, &InfoSites::openURL);
    connect(m_page->openButton, &QPushButton::clicked, this, &InfoSites::openURL);
    return m_page;
}

void InfoSites::openROMinfo(const QString& name)
{
    if (const auto site = siteWithoutHost(); site && !name.isEmpty())
        Q_EMIT statusMessage(qtTrId("infosite_no_host").arg(*site));
    const auto page = name.isEmpty() ? std::nullopt : gamePage(templateOf(0), name);
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
