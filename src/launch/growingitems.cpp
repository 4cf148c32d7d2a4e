#include "launch/growingitems.h"

#include "platform/defaultscontroller.h"

#include <algorithm>

namespace tessera {

namespace {

bool isOneWord(const QString& title)
{
    return !title.isEmpty() && !title.startsWith(u'-')
        && std::ranges::none_of(title, [](QChar c) { return c.isSpace() || !c.isPrint() || c == u'"'; });
}

bool isShipped(const GrowingItems& items, const QString& title)
{
    return std::ranges::any_of(items.shipped, [&](const PopupItem& item) {
        return item.title != nullptr && title == QLatin1StringView(item.title);
    });
}

} // namespace

QStringList keptTitles(const DefaultsController& defaults, const GrowingItems& items)
{
    return defaults.text(items.kept).split(u' ', Qt::SkipEmptyParts);
}

QStringList newTitles(const DefaultsController& defaults, const GrowingItems& items,
                      const QStringList& titles)
{
    const QStringList kept = keptTitles(defaults, items);
    QStringList added;
    for (const QString& title : titles) {
        if (isOneWord(title) && !isShipped(items, title) && !kept.contains(title) && !added.contains(title))
            added << title;
    }
    return added;
}

void keepTitles(DefaultsController& defaults, const GrowingItems& items, const QStringList& titles)
{
    const QStringList added = newTitles(defaults, items, titles);
    if (!added.isEmpty())
        defaults.setText(items.kept, (keptTitles(defaults, items) + added).join(u' '));
}

int positionOf(const DefaultsController& defaults, const GrowingItems& items, const QString& title)
{
    const auto shipped = std::ranges::find_if(items.shipped, [&](const PopupItem& item) {
        return item.title && title == QLatin1String(item.title);
    });
    if (shipped != items.shipped.end())
        return static_cast<int>(shipped - items.shipped.begin());
    const auto kept = static_cast<int>(keptTitles(defaults, items).indexOf(title));
    return kept < 0 ? kept : static_cast<int>(items.shipped.size()) + kept;
}

PopupState storedState(const DefaultsController& defaults, const Key<float>& key, const GrowingItems& items)
{
    const int index = defaults.index(key);
    const auto shipped = static_cast<int>(items.shipped.size());
    const QStringList kept = keptTitles(defaults, items);
    if (index < 0 || index >= shipped + kept.size())
        return {};
    return {index,
            index < shipped ? QString::fromLatin1(items.shipped[static_cast<std::size_t>(index)].title)
                            : kept[index - shipped]};
}

} // namespace tessera
