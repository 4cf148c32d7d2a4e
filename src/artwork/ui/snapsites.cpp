#include "artwork/ui/snapsites.h"

#include "artwork/picturesites.h"
#include "artwork/ui/picturespage.h"
#include "platform/defaultscontroller.h"

#include <QLineEdit>

#include <algorithm>

namespace tessera {

namespace {

const PictureSite* siteAt(int index)
{
    const bool isSite = index >= 0 && index < static_cast<int>(pictureSites.size());
    return isSite ? &pictureSites[static_cast<std::size_t>(index)] : nullptr;
}

void showText(QLineEdit& field, const QString& text)
{
    if (field.text() != text)
        field.setText(text);
}

} // namespace

SnapSites::SnapSites(DefaultsController& defaults, QObject* parent)
    : QObject(parent)
    , m_defaults(defaults)
{
    connect(&defaults, &DefaultsController::changed, this, &SnapSites::settingChanged);
    snapdownsiteAction();
}

void SnapSites::setPage(PicturesPage& page)
{
    m_page = &page;
    connect(page.hostField, &QLineEdit::textEdited, this, &SnapSites::storeHost);
    int kind = 0;
    for (QLineEdit* field : page.templateFields()) {
        connect(field, &QLineEdit::textEdited, this,
                [this, kind](const QString& text) { storeTemplate(kind, text); });
        ++kind;
    }
    showTemplates();
}

QString SnapSites::templateOf(int kind) const
{
    const bool isKind = kind >= 0 && kind < static_cast<int>(m_templates.size());
    return isKind ? m_templates[static_cast<std::size_t>(kind)] : QString();
}

SettingReader SnapSites::settingReader() const
{
    return [this](const ChosenKey& key) { return m_defaults.text(key); };
}

std::optional<int> SnapSites::siteWithoutHost() const
{
    const PictureSite* site = siteAt(m_defaults.index(keys::Snapdownsite));
    const bool lacksHost = site != nullptr && hostText(site->host, settingReader()).isEmpty();
    return lacksHost ? std::optional(site->number) : std::nullopt;
}

// What the pop-up shows: its item at this position has the own site's title.
bool SnapSites::isOwnSite() const
{
    return m_defaults.index(keys::Snapdownsite) == ownPictureSite;
}

void SnapSites::snapdownsiteAction()
{
    if (const auto templates = pictureTemplates(m_defaults.index(keys::Snapdownsite), settingReader()))
        m_templates = *templates;
    showTemplates();
}

void SnapSites::showTemplates()
{
    if (!m_page)
        return;
    int kind = 0;
    for (QLineEdit* field : m_page->templateFields()) {
        field->setEnabled(isOwnSite());
        showText(*field, templateOf(kind++));
    }
    const PictureSite* site = siteAt(m_defaults.index(keys::Snapdownsite));
    m_page->hostField->setEnabled(site != nullptr);
    const QString host = site != nullptr ? hostText(site->host, settingReader()) : QString();
    if (m_page->hostField->text().trimmed() != host)
        m_page->hostField->setText(host);
}

void SnapSites::storeHost(const QString& host)
{
    const PictureSite* site = siteAt(m_defaults.index(keys::Snapdownsite));
    if (site == nullptr)
        return;
    m_defaults.setText(*site->host.key, host);
    // Else what is cleared would come back.
    if (site->host.former != nullptr && !m_defaults.text(*site->host.former).isEmpty())
        m_defaults.setText(*site->host.former, QString());
}

void SnapSites::storeTemplate(int kind, const QString& text)
{
    if (isOwnSite())
        m_defaults.setText(*artworkKinds[static_cast<std::size_t>(kind)].downloadTemplate, text);
}

void SnapSites::settingChanged(const QString& name)
{
    const bool isTemplate = std::ranges::any_of(
        artworkKinds, [&](const ArtworkKind& each) { return name == each.downloadTemplate->name; });
    if (name.isEmpty() || isTemplate || name == keys::Snapdownsite.name || isHostSetting(name))
        snapdownsiteAction();
}

} // namespace tessera
