#include "widgets/deletionfocusring.h"

#include <QWidget>

namespace tessera {

void DeletionFocusRing::awakeFromNib(QWidget& window)
{
    for (const QLatin1StringView name : controls) {
        if (auto* control = window.findChild<QWidget*>(name))
            control->setProperty("focusring", QStringLiteral("none"));
    }
}

} // namespace tessera
