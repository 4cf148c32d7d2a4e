#include "info/informationsites.h"

namespace tessera {

std::optional<QString> siteTemplate(int index, const SettingReader& settingOf)
{
    if (index < 0 || index >= static_cast<int>(informationSites.size()))
        return index == keptSite ? std::nullopt : std::optional(QString());
    const InformationSite& site = informationSites[static_cast<std::size_t>(index)];
    return templateAt(hostText(site.host, settingOf), QLatin1StringView(site.page));
}

std::optional<QUrl> gamePage(const QString& siteTemplate, const QString& name)
{
    return webAddress(withGameName(siteTemplate, name));
}

} // namespace tessera
