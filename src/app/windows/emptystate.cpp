#include "app/windows/emptystate.h"

#include "widgets/theme.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessera {

EmptyState::EmptyState(QWidget* parent)
    : QWidget(parent)
    , m_sentence(new QLabel(this))
    , m_button(new QPushButton(this))
{
    setObjectName(QStringLiteral("emptyState"));
    auto* picture = new QLabel(this);
    picture->setPixmap(
        theme::icon(QStringLiteral("empty")).pixmap(QSize(48, 48), devicePixelRatioF(), QIcon::Disabled));
    m_sentence->setProperty("role", QStringLiteral("dim"));
    m_sentence->setAlignment(Qt::AlignCenter);
    m_sentence->setWordWrap(true);
    m_button->setObjectName(QStringLiteral("emptyStateButton"));

    auto* layout = new QVBoxLayout(this);
    layout->setSpacing(16);
    layout->addStretch();
    layout->addWidget(picture, 0, Qt::AlignHCenter);
    layout->addWidget(m_sentence);
    layout->addWidget(m_button, 0, Qt::AlignHCenter);
    layout->addStretch();
    connect(m_button, &QPushButton::clicked, this, &EmptyState::acted);
}

void EmptyState::showReason(const QString& sentence, const QString& button)
{
    m_sentence->setText(sentence);
    m_button->setText(button);
    m_button->setVisible(!button.isEmpty());
}

} // namespace tessera
