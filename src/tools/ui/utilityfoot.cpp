#include "tools/ui/utilityfoot.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>

namespace tessera {

namespace {

constexpr int indicatorWidth = 168;
constexpr int spacing = 14;

} // namespace

UtilityFoot::UtilityFoot(QWidget* parent)
    : QWidget(parent)
    , infoTextField(new QLabel(this))
    , progressInd(new QProgressBar(this))
    , progressCount(new QLabel(this))
    , button_cancel(new QPushButton(qtTrId("tool_cancel"), this))
    , m_buttons(new QStackedWidget(this))
{
    setProperty("role", QStringLiteral("foot"));
    setAttribute(Qt::WA_StyledBackground);
    infoTextField->setObjectName(QStringLiteral("infoTextField"));
    infoTextField->setAccessibleName(qtTrId("tool_information"));
    infoTextField->setTextFormat(Qt::PlainText);
    infoTextField->setWordWrap(true);
    infoTextField->setTextInteractionFlags(Qt::TextSelectableByMouse);
    progressInd->setObjectName(QStringLiteral("progressInd"));
    progressInd->setAccessibleName(qtTrId("tool_progress"));
    progressInd->setTextVisible(false);
    progressInd->setFixedWidth(indicatorWidth);
    progressCount->setObjectName(QStringLiteral("progressCount"));
    progressCount->setProperty("role", QStringLiteral("dim"));
    progressCount->setVisible(false);
    button_cancel->setObjectName(QStringLiteral("button_cancel"));
    button_cancel->setVisible(false);
    m_buttons->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Maximum);

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(18, 12, 18, 12);
    layout->setSpacing(spacing);
    layout->addWidget(infoTextField, 1);
    layout->addWidget(progressInd);
    layout->addWidget(progressCount);
    layout->addWidget(button_cancel);
    layout->addWidget(m_buttons);
}

void UtilityFoot::addButtons(const QList<QPushButton*>& buttons)
{
    auto* group = new QWidget(m_buttons);
    auto* layout = new QHBoxLayout(group);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addStretch();
    for (QPushButton* button : buttons) {
        button->setAutoDefault(true);
        layout->addWidget(button);
    }
    buttons.last()->setProperty("role", QStringLiteral("accent"));
    m_buttons->addWidget(group);
}

void UtilityFoot::showButtonsOf(int page)
{
    m_buttons->setCurrentIndex(page);
}

void UtilityFoot::setBusy(bool isBusy)
{
    m_buttons->setEnabled(!isBusy);
    button_cancel->setVisible(isBusy);
    if (!isBusy)
        progressCount->setVisible(false);
}

} // namespace tessera
