#pragma once

#include <QString>
#include <QStringList>

namespace tessera {

/// Marks a text key that stands in a table and is looked up with qtTrId() later.
constexpr const char* textKey(const char* key)
{
    return key;
}

/// What there is to say: the key of a text in translations/, and what fills its %1, %2, ...
struct Message {
    const char* key;
    QStringList arguments;

    /// One sentence in the user's language.
    QString text() const;
};

} // namespace tessera
