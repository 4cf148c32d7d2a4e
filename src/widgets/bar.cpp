#include "widgets/bar.h"

#include <QHBoxLayout>

namespace tessera {

Bar::Bar(Place place, QWidget* parent)
    : QWidget(parent)
    , m_row(new QHBoxLayout(this))
{
    setProperty("role", place == Place::Top ? QStringLiteral("toolbar") : QStringLiteral("foot"));
    setAttribute(Qt::WA_StyledBackground);
    m_row->setContentsMargins(12, 10, 12, 10);
    m_row->setSpacing(8);
}

} // namespace tessera
