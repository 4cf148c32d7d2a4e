#include "widgets/mnemonic.h"

#include <QRegularExpression>

namespace tessera {

QString withoutMnemonic(QString label)
{
    static const QRegularExpression appended(QStringLiteral("\\(&.\\)"));
    return label.remove(appended).remove(QLatin1Char('&'));
}

} // namespace tessera
