#include "core/sitehost.h"

namespace tessera {

QString hostText(const SiteHost& host, const SettingReader& settingOf)
{
    const QString text = settingOf(*host.key).trimmed();
    return text.isEmpty() && host.former != nullptr ? settingOf(*host.former).trimmed() : text;
}

bool isHostSetting(const QString& name)
{
    return name.startsWith(QLatin1StringView("InfositeHost"))
        || name.startsWith(QLatin1StringView("SnapsiteHost"));
}

} // namespace tessera
