#include "app/preferenceswindow.h"

#include "widgets/closekeys.h"
#include "widgets/theme.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QStackedWidget>
#include <QToolButton>

namespace tessera {

namespace {
constexpr QSize firstSize(760, 680);
} // namespace

PreferencesWindow::PreferencesWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , resetButton(new QPushButton(qtTrId("preferences_reset")))
    , m_buttons(new QButtonGroup(this))
    , m_pages(new QStackedWidget)
{
    setObjectName(QStringLiteral("preferencesWindow"));
    setWindowTitle(qtTrId("preferences_title"));
    resetButton->setObjectName(QStringLiteral("resetButton"));

    auto* bar = new QWidget;
    bar->setProperty("role", QStringLiteral("toolbar"));
    bar->setAttribute(Qt::WA_StyledBackground);
    m_bar = new QHBoxLayout(bar);
    m_bar->setContentsMargins(12, 8, 12, 8);
    m_bar->setSpacing(4);
    m_bar->addStretch();
    m_bar->addStretch();

    auto* foot = new QWidget;
    foot->setProperty("role", QStringLiteral("foot"));
    foot->setAttribute(Qt::WA_StyledBackground);
    m_foot = new QHBoxLayout(foot);
    m_foot->setContentsMargins(16, 10, 16, 10);
    m_foot->setSpacing(8);
    m_foot->addStretch();
    m_foot->addWidget(resetButton);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(bar);
    layout->addWidget(m_pages, 1);
    layout->addWidget(foot);
    connect(m_buttons, &QButtonGroup::idClicked, m_pages, &QStackedWidget::setCurrentIndex);
    closeByKeyboard(*this);
    resize(firstSize);
}

PreferencesWindow::~PreferencesWindow()
{
    for (const QPointer<QWidget>& page : m_waiting)
        delete page.data();
}

void PreferencesWindow::addPage(QWidget* page, const QString& title, const QString& icon)
{
    const int index = static_cast<int>(m_buttons->buttons().size());
    m_waiting << page;

    auto* button = new QToolButton;
    button->setProperty("role", QStringLiteral("page"));
    button->setText(title);
    button->setIcon(theme::icon(icon));
    button->setIconSize(QSize(20, 20));
    button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    button->setCheckable(true);
    button->setChecked(index == 0);
    button->setFocusPolicy(Qt::StrongFocus);
    m_buttons->addButton(button, index);
    m_bar->insertWidget(m_bar->count() - 1, button);
}

void PreferencesWindow::setFoot(QWidget* foot)
{
    delete m_foot->takeAt(0);
    m_foot->insertWidget(0, foot, 1);
    foot->show();
}

void PreferencesWindow::showEvent(QShowEvent* event)
{
    Q_EMIT aboutToShow();
    for (QWidget* page : std::exchange(m_waiting, {})) {
        auto* scroll = new QScrollArea;
        scroll->setWidgetResizable(true);
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setWidget(page);
        m_pages->addWidget(scroll);
    }
    m_pages->setCurrentIndex(m_buttons->checkedId());
    // Never the reset button, which the toolkit would choose.
    if (focusWidget() == nullptr && m_buttons->checkedButton() != nullptr)
        m_buttons->checkedButton()->setFocus();
    QWidget::showEvent(event);
}

void PreferencesWindow::showPage(int index)
{
    if (QAbstractButton* button = m_buttons->button(index)) {
        button->setChecked(true);
        m_pages->setCurrentIndex(index);
    }
}

void PreferencesWindow::centre()
{
    if (const QScreen* shownOn = screen())
        move(shownOn->availableGeometry().center() - rect().center());
}

} // namespace tessera
