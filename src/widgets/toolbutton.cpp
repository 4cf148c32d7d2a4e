#include "widgets/toolbutton.h"

#include "widgets/theme.h"

#include <QToolButton>

namespace tessera {

QToolButton* toolButton(const QString& icon, const QString& name)
{
    auto* button = new QToolButton;
    button->setIcon(theme::icon(icon));
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setObjectName(icon + QStringLiteral("Button"));
    return button;
}

} // namespace tessera
