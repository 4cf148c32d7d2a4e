#include "core/failure.h"

#include <QCoreApplication>

namespace tessera {

QString Failure::text() const
{
    QString sentence = qtTrId(key);
    // Filled from the last placeholder to the first: an argument from outside may hold "%1" itself.
    for (qsizetype i = arguments.size(); i > 0; --i)
        sentence.replace(QLatin1Char('%') + QString::number(i), arguments[i - 1]);
    return sentence;
}

} // namespace tessera
