#include "widgets/toolbutton.h"

#include "widgets/theme.h"

#include <QPushButton>
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

QPushButton* accentButton(const QString& icon, const QString& text)
{
    auto* button = new QPushButton(text);
    button->setIcon(theme::icon(icon, "onaccent"));
    button->setObjectName(icon + QStringLiteral("Button"));
    button->setProperty("role", QStringLiteral("accent"));
    return button;
}

} // namespace tessera
