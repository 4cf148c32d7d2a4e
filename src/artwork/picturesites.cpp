#include "artwork/picturesites.h"

#include <algorithm>

namespace tessera {

std::optional<PictureTemplates> pictureTemplates(int index, const SettingReader& settingOf)
{
    PictureTemplates templates;
    if (index == ownPictureSite) {
        std::ranges::transform(artworkKinds, templates.begin(),
                               [&](const ArtworkKind& kind) { return settingOf(*kind.downloadTemplate); });
        return templates;
    }
    if (index < 0 || index > ownPictureSite)
        return std::nullopt;
    const PictureSite& site = pictureSites[static_cast<std::size_t>(index)];
    const QString host = hostText(site.host, settingOf);
    std::ranges::transform(site.pages, templates.begin(), [&](const char* page) {
        return *page == '\0' ? QString() : templateAt(host, QLatin1StringView(page));
    });
    return templates;
}

QUrl pictureAddress(const QString& siteTemplate, const QString& name)
{
    return QUrl(withGameName(siteTemplate, name) + QStringLiteral(".png"));
}

} // namespace tessera
