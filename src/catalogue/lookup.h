#pragma once

#include "catalogue/arrangedlist.h"
#include "catalogue/recorddictionary.h"

#include <QList>
#include <QStringList>

namespace tessera {

/// The answer to a lookup by values, each part in the order of the question.
struct LookupResult {
    QList<RecordDictionary> found;
    QStringList notFound;
};

/// For each value the first record of the list, as it is filtered and sorted, that has exactly this value. A
/// value that is asked for twice is answered twice.
LookupResult lookUp(const ArrangedList& list, Field key, const QStringList& values);

/// What the log says of a value that no record has, the same in every language.
inline QString notFoundLine(const QString& value)
{
    return QStringLiteral("%1 は見つかりませんでした").arg(value);
}

} // namespace tessera
