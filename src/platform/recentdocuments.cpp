#include "platform/recentdocuments.h"

namespace tessera {

namespace {
constexpr qsizetype keptDocuments = 10;
}

RecentDocuments::RecentDocuments(DefaultsController& defaults)
    : m_defaults(defaults)
{
}

void RecentDocuments::note(const QString& path)
{
    QStringList list = paths();
    list.removeAll(path);
    list.prepend(path);
    m_defaults.keep(keys::RecentDocuments, list.mid(0, keptDocuments));
}

QStringList RecentDocuments::paths() const
{
    return m_defaults.stored().value(keys::RecentDocuments.name).value_or(QVariant()).toStringList();
}

} // namespace tessera
