#include "widgets/pathfield.h"

#include "widgets/named.h"
#include "widgets/theme.h"

#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

PathField::PathField(const QString& name, const QString& chooseLabel, const QString& revealLabel,
                     QWidget* parent)
    : QWidget(parent)
    , m_field(new QLineEdit(this))
    , m_choose(new QPushButton(chooseLabel, this))
    , m_reveal(new QToolButton(this))
{
    m_field->setAccessibleName(name);
    m_choose->setAccessibleName(chooseLabel + QStringLiteral(": ") + name);
    m_reveal->setIcon(theme::icon(QStringLiteral("reveal")));
    m_reveal->setToolTip(revealLabel);
    m_reveal->setAccessibleName(revealLabel + QStringLiteral(": ") + name);
    setFocusProxy(m_field);

    auto* layout = edgeToEdge(this, 8);
    layout->addWidget(m_field, 1);
    layout->addWidget(m_choose);
    layout->addWidget(m_reveal);
}

} // namespace tessera
