#include "widgets/deletionfocusring.h"

#include <QStyle>
#include <QWidget>

namespace tessera {

void DeletionFocusRing::awakeFromNib(QWidget& window)
{
    for (const QLatin1StringView name : controls) {
        if (auto* control = window.findChild<QWidget*>(name))
            takeRing(*control);
    }
}

void DeletionFocusRing::takeRing(QWidget& control)
{
    control.setProperty("focusring", QStringLiteral("none"));
    // The style sheet asks for it when a control is polished, which a shown one was already.
    control.style()->unpolish(&control);
    control.style()->polish(&control);
}

} // namespace tessera
