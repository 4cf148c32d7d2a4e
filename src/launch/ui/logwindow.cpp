#include "launch/ui/logwindow.h"

#include "widgets/logview.h"
#include "widgets/closekeys.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace tessera {

namespace {
constexpr QSize firstSize(760, 480);
}

LogWindow::LogWindow(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , infomationTextView(new LogView(this))
    , saveButton(new QPushButton(qtTrId("log_save"), this))
{
    setObjectName(QStringLiteral("logWindow"));
    setWindowTitle(qtTrId("log_title"));
    infomationTextView->setObjectName(QStringLiteral("infomationTextView"));
    infomationTextView->setAccessibleName(qtTrId("log_title"));
    saveButton->setObjectName(QStringLiteral("saveButton"));

    auto* foot = new QWidget(this);
    foot->setProperty("role", QStringLiteral("foot"));
    foot->setAttribute(Qt::WA_StyledBackground);
    auto* footLayout = new QHBoxLayout(foot);
    footLayout->setContentsMargins(16, 10, 16, 10);
    footLayout->addStretch();
    footLayout->addWidget(saveButton);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(infomationTextView, 1);
    layout->addWidget(foot);
    closeByKeyboard(*this);
    resize(firstSize);
}

void LogWindow::setCommands(QWidget* bar)
{
    qobject_cast<QVBoxLayout*>(layout())->insertWidget(0, bar);
    // A layout shows what comes so late only after the window.
    bar->show();
}

void LogWindow::showEvent(QShowEvent* event)
{
    Q_EMIT aboutToShow();
    QWidget::showEvent(event);
}

} // namespace tessera
