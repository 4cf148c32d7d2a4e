#include "artwork/downloadtexts.h"

#include "artwork/pictureanswer.h"

namespace tessera::downloadtexts {

// Only one blank in this one.
QString requested(const QUrl& url)
{
    return QStringLiteral("Snap Download: Request...\n%1\n\n").arg(url.toString(QUrl::FullyEncoded));
}

QString answered(double expectedLength)
{
    return expectedLength == unknownLength
        ? QStringLiteral("Snap Download:  ??? byte\n")
        : QString::asprintf("Snap Download:  %3.0f byte\n", expectedLength);
}

std::optional<QString> received(double length, double expectedLength)
{
    if (expectedLength == unknownLength)
        return std::nullopt;
    return QString::asprintf("Snap Download:  %3.0f byte...\n", length);
}

QString finished(double expectedLength)
{
    return QString::asprintf("Snap Download:  %3.0f byte  Finish.\n", expectedLength);
}

} // namespace tessera::downloadtexts
