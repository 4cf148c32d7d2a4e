#include "catalogue/ui/lastsearches.h"

#include "platform/defaultscontroller.h"

namespace tessera {

namespace {

constexpr qsizetype mostSearches = 12;

} // namespace

LastSearches::LastSearches(DefaultsController& defaults)
    : m_defaults(defaults)
{
}

// Anybody may have written there. A settings file makes a single text of a list of one.
QStringList LastSearches::all() const
{
    const QVariant stored = m_defaults.stored().value(keys::LastSearches.name).value_or(QVariant());
    QStringList searches;
    if (stored.typeId() == QMetaType::QString || stored.typeId() == QMetaType::QStringList)
        searches = stored.toStringList();
    searches.removeAll(QString());
    searches.removeDuplicates();
    return searches.mid(0, mostSearches);
}

void LastSearches::note(const QString& query)
{
    const QString search = query.simplified();
    if (search.isEmpty())
        return;
    QStringList searches = all();
    searches.removeAll(search);
    searches.prepend(search);
    m_defaults.keep(keys::LastSearches, searches.mid(0, mostSearches));
}

void LastSearches::forget()
{
    m_defaults.forget(keys::LastSearches);
}

} // namespace tessera
