#include "launch/biostitles.h"

#include "launch/popupitems.h"
#include "platform/defaultscontroller.h"

#include <algorithm>

namespace tessera {

namespace {

bool isShipped(const QString& title)
{
    return std::ranges::any_of(biosSets, [&](const PopupItem& item) {
        return item.title != nullptr && title == QLatin1StringView(item.title);
    });
}

bool isOneWord(const QString& title)
{
    return !title.isEmpty() && !title.startsWith(u'-')
        && std::ranges::none_of(title, [](QChar c) { return c.isSpace() || !c.isPrint() || c == u'"'; });
}

} // namespace

QStringList learntBiosTitles(const DefaultsController& defaults)
{
    return defaults.text(keys::LearntBiosTitles).split(u' ', Qt::SkipEmptyParts);
}

void learnBiosTitles(DefaultsController& defaults, const QStringList& titles)
{
    QStringList learnt = learntBiosTitles(defaults);
    for (const QString& title : titles) {
        if (isOneWord(title) && !isShipped(title) && !learnt.contains(title))
            learnt << title;
    }
    defaults.setText(keys::LearntBiosTitles, learnt.join(u' '));
}

} // namespace tessera
