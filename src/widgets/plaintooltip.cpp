#include "widgets/plaintooltip.h"

#include <QTextDocument>

namespace tessera {

QString plainToolTip(const QString& text)
{
    return Qt::mightBeRichText(text) ? QStringLiteral("<qt>") + text.toHtmlEscaped() + QStringLiteral("</qt>")
                                     : text;
}

} // namespace tessera
