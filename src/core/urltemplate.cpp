#include "core/urltemplate.h"

namespace tessera {

namespace {

constexpr QLatin1StringView placeholder("{$gamename}");

} // namespace

QString templateAt(const QString& host, QLatin1StringView page)
{
    QString site = host.trimmed();
    if (site.isEmpty())
        return QString();
    while (site.endsWith(u'/'))
        site.chop(1);
    const QString scheme = site.contains(QStringLiteral("://")) ? QString() : QStringLiteral("http://");
    return scheme + site + u'/' + page;
}

QString withGameName(QString siteTemplate, const QString& name)
{
    return siteTemplate.replace(placeholder, QString::fromLatin1(QUrl::toPercentEncoding(name)));
}

std::optional<QUrl> webAddress(const QString& text)
{
    const QUrl url(text, QUrl::StrictMode);
    const bool isWeb = url.scheme() == QStringLiteral("http") || url.scheme() == QStringLiteral("https");
    return url.isValid() && isWeb && !url.host().isEmpty() ? std::optional(url) : std::nullopt;
}

} // namespace tessera
