#include "core/message.h"

#include <QCoreApplication>

namespace tessera {

// In one pass: an argument from outside may hold "%1" itself.
QString Message::text() const
{
    const QString sentence = qtTrId(key);
    QString filled;
    for (qsizetype i = 0; i < sentence.size(); ++i) {
        const int place = sentence[i] == QLatin1Char('%') ? sentence.mid(i + 1, 1).toInt() : 0;
        if (place >= 1 && place <= arguments.size()) {
            filled += arguments[place - 1];
            ++i;
        } else {
            filled += sentence[i];
        }
    }
    return filled;
}

} // namespace tessera
