#include "platform/websites.h"

#include "platform/defaultscontroller.h"

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

const WebSite* SiteTable::siteAt(int position) const
{
    const bool isSite = position >= 0 && position < static_cast<int>(sites.size());
    return isSite ? &sites[static_cast<std::size_t>(position)] : nullptr;
}

QString hostText(const SiteHost& host, const DefaultsController& defaults)
{
    const QString text = defaults.text(*host.key).trimmed();
    return text.isEmpty() && host.former != nullptr ? defaults.text(*host.former).trimmed() : text;
}

std::optional<QStringList> templatesAt(const SiteTable& table, int position,
                                       const DefaultsController& defaults)
{
    const WebSite* site = table.siteAt(position);
    if (site == nullptr && position != table.own && position == table.kept.value_or(position))
        return std::nullopt;
    QStringList templates;
    for (std::size_t kind = 0; kind < table.ownTemplates.size(); ++kind) {
        QString& text = templates.emplaceBack();
        if (position == table.own)
            text = defaults.text(table.ownTemplates[kind]);
        else if (site != nullptr && site->pages[kind] != nullptr)
            text = templateAt(hostText(site->host, defaults), QLatin1StringView(site->pages[kind]));
    }
    return templates;
}

std::optional<int> siteWithoutHost(const SiteTable& table, int position, const DefaultsController& defaults)
{
    const WebSite* site = table.siteAt(position);
    const bool lacksHost = site != nullptr && hostText(site->host, defaults).isEmpty();
    return lacksHost ? std::optional(site->number) : std::nullopt;
}

} // namespace tessera
