#include "tools/ui/utilityfoot.h"

#include "widgets/named.h"

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
    , infoTextField(named("infoTextField", new QLabel(this), qtTrId("tool_information")))
    , progressInd(named("progressInd", new QProgressBar(this), qtTrId("tool_progress")))
    , progressCount(named("progressCount", withRole("dim", new QLabel(this))))
    , button_cancel(named("button_cancel", new QPushButton(qtTrId("tool_cancel"), this)))
    , m_buttons(new QStackedWidget(this))
{
    withRole("foot", this);
    setAttribute(Qt::WA_StyledBackground);
    infoTextField->setTextFormat(Qt::PlainText);
    infoTextField->setWordWrap(true);
    infoTextField->setTextInteractionFlags(Qt::TextSelectableByMouse);
    progressInd->setTextVisible(false);
    progressInd->setFixedWidth(indicatorWidth);
    progressInd->setVisible(false);
    progressCount->setVisible(false);
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
    auto* layout = edgeToEdge(group);
    layout->addStretch();
    // Before the button gets its new parent: the style sheet reads the property then.
    withRole("accent", buttons.last());
    for (QPushButton* button : buttons) {
        button->setAutoDefault(true);
        layout->addWidget(button);
    }
    m_buttons->addWidget(group);
    showButtonsOf(m_buttons->currentIndex());
}

void UtilityFoot::showButtonsOf(int page)
{
    m_buttons->setCurrentIndex(page);
    // What is not shown takes no room from the information line.
    for (int i = 0; i < m_buttons->count(); ++i)
        m_buttons->widget(i)->setSizePolicy(i == page ? QSizePolicy::Preferred : QSizePolicy::Ignored,
                                            QSizePolicy::Preferred);
    m_buttons->updateGeometry();
}

void UtilityFoot::setBusy(bool isBusy)
{
    QWidget* focused = window()->focusWidget();
    if (isBusy)
        m_focused = m_buttons->isAncestorOf(focused) ? focused : nullptr;
    m_buttons->setEnabled(!isBusy);
    // What goes is hidden before the other is shown: both beside each other would widen the window.
    if (isBusy) {
        m_buttons->setVisible(false);
        button_cancel->setVisible(true);
    } else {
        progressCount->setVisible(false);
        button_cancel->setVisible(false);
        m_buttons->setVisible(true);
    }
    if (isBusy && m_focused)
        button_cancel->setFocus();
    if (!isBusy && m_focused && (focused == nullptr || focused == button_cancel))
        m_focused->setFocus();
}

// Laid out at once: what follows may keep the event loop waiting.
void UtilityFoot::showIndicator(bool isShown)
{
    progressInd->setVisible(isShown);
    layout()->activate();
}

} // namespace tessera
