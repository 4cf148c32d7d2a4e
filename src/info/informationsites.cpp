#include "info/informationsites.h"

namespace tessera {

namespace {

constexpr QLatin1StringView placeholder("{$gamename}");

// A host alone, or with the scheme that it is to be asked by.
QString base(QString host)
{
    while (host.endsWith(u'/'))
        host.chop(1);
    const QString scheme = host.contains(QStringLiteral("://")) ? QString() : QStringLiteral("http://");
    return scheme + host + u'/';
}

} // namespace

std::optional<QString> siteTemplate(int index, const std::function<QString(const ChosenKey&)>& hostOf)
{
    if (index == keptSite)
        return std::nullopt;
    if (index < 0 || index >= static_cast<int>(informationSites.size()))
        return QString();
    const InformationSite& site = informationSites[static_cast<std::size_t>(index)];
    const QString host = hostOf(*site.host).trimmed();
    return host.isEmpty() ? QString() : base(host) + QLatin1StringView(site.page);
}

// A name is text from a file: whatever it holds, it stays one part of the address.
std::optional<QUrl> gamePage(const QString& siteTemplate, const QString& name)
{
    QString address = siteTemplate;
    address.replace(placeholder, QString::fromLatin1(QUrl::toPercentEncoding(name)));
    return webAddress(address);
}

std::optional<QUrl> webAddress(const QString& text)
{
    const QUrl url(text, QUrl::StrictMode);
    const bool isWeb = url.scheme() == QStringLiteral("http") || url.scheme() == QStringLiteral("https");
    return url.isValid() && isWeb && !url.host().isEmpty() ? std::optional(url) : std::nullopt;
}

} // namespace tessera
