#include "widgets/deletionfocusring.h"

#include <QWidget>

namespace tessera {

void DeletionFocusRing::awakeFromNib(QWidget& window)
{
    for (const QLatin1StringView name : controls) {
        if (auto* control = window.findChild<QWidget*>(name)) {
            control->setAttribute(Qt::WA_MacShowFocusRect, false);
            control->setProperty("focusring", QStringLiteral("none"));
        }
    }
}

} // namespace tessera
