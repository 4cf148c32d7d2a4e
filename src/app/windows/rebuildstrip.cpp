#include "app/windows/rebuildstrip.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QProgressBar>
#include <QPushButton>

namespace tessera {

RebuildStrip::RebuildStrip(QWidget* parent)
    : QWidget(parent)
    , m_text(new QLabel(this))
    , m_count(new QLabel(this))
    , m_progress(new QProgressBar(this))
    , m_cancel(new QPushButton(qtTrId("rebuild_cancel"), this))
{
    setObjectName(QStringLiteral("rebuildStrip"));
    setProperty("role", QStringLiteral("toolbar"));
    setAttribute(Qt::WA_StyledBackground);
    m_text->setTextFormat(Qt::PlainText);
    m_count->setProperty("role", QStringLiteral("dim"));
    m_count->setObjectName(QStringLiteral("rebuildCount"));
    m_progress->setRange(0, 0);
    m_progress->setTextVisible(false);
    m_progress->setFixedWidth(160);
    m_progress->setAccessibleName(qtTrId("rebuild_progress"));
    m_cancel->setObjectName(QStringLiteral("rebuildCancel"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 8);
    layout->setSpacing(16);
    layout->addWidget(m_text);
    layout->addStretch();
    layout->addWidget(m_progress);
    layout->addWidget(m_count);
    layout->addWidget(m_cancel);
    connect(m_cancel, &QPushButton::clicked, this, &RebuildStrip::cancelled);
    hide();
}

void RebuildStrip::begin(const QString& emulator)
{
    m_text->setText(qtTrId("rebuild_running").arg(emulator));
    showCount(0);
    show();
}

void RebuildStrip::showCount(int machines)
{
    m_count->setText(qtTrId("rebuild_count").arg(QLocale().toString(machines)));
}

} // namespace tessera
