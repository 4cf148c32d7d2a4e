#include "app/windows/preferenceswindow.h"

#include "app/windows/supportpage.h"
#include "widgets/closekeys.h"
#include "widgets/deletionfocusring.h"
#include "widgets/toolbar.h"

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
    , m_preferencesTab(new QStackedWidget)
    , m_toolbar(new Toolbar(*this, *m_preferencesTab))
{
    setObjectName(QStringLiteral("preferencesWindow"));
    setWindowTitle(qtTrId("preferences_title"));
    resetButton->setObjectName(QStringLiteral("resetButton"));

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
    layout->addWidget(m_preferencesTab, 1);
    layout->addWidget(foot);
    closeByKeyboard(*this);
    resize(firstSize);
}

PreferencesWindow::~PreferencesWindow()
{
    for (const Waiting& each : m_waiting)
        delete each.page.data();
}

void PreferencesWindow::addPage(const QString& identifier, QWidget* page)
{
    m_waiting.append({identifier, page});
}

SupportPage& PreferencesWindow::supportPage()
{
    if (!m_support) {
        m_support = new SupportPage(*m_toolbar);
        addPage(QStringLiteral("support"), m_support);
    }
    return *m_support;
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
    takePages();
    // Never the reset button, which the toolkit would choose.
    if (focusWidget() == nullptr)
        m_toolbar->selectedItem()->setFocus();
    QWidget::showEvent(event);
}

void PreferencesWindow::takePages()
{
    for (const Waiting& each : std::exchange(m_waiting, {})) {
        auto* scroll = new QScrollArea;
        scroll->setObjectName(each.identifier);
        scroll->setWidgetResizable(true);
        scroll->setFrameShape(QFrame::NoFrame);
        scroll->setWidget(each.page);
        m_preferencesTab->addWidget(scroll);
    }
    if (std::exchange(m_isComplete, true))
        return;
    m_toolbar->awakeFromNib();
    DeletionFocusRing::awakeFromNib(*this);
}

void PreferencesWindow::centre()
{
    if (const QScreen* shownOn = screen())
        move(shownOn->availableGeometry().center() - rect().center());
}

} // namespace tessera
