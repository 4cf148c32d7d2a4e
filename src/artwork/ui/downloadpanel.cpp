#include "artwork/ui/downloadpanel.h"

#include "widgets/closekeys.h"
#include "widgets/named.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>

namespace tessera {

namespace {

constexpr QSize firstSize(520, 200);
constexpr int whole = 100;

} // namespace

DownloadPanel::DownloadPanel(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , progressInd2(named("progressInd2", new QProgressBar, qtTrId("download_progress")))
    , infomationTextView(named("downloadTextView", new QPlainTextEdit, qtTrId("download_panel")))
    , cancelButton(named("downloadCancelButton", new QPushButton(qtTrId("download_stop"))))
    , closeButton(named("downloadCloseButton", new QPushButton(qtTrId("download_close"))))
    , folderLabel(withRole("faint", new QLabel))
{
    setObjectName(QStringLiteral("downloadPanel"));
    setWindowTitle(qtTrId("download_panel"));
    withRole("panel", this);
    setAttribute(Qt::WA_StyledBackground);
    progressInd2->setTextVisible(false);
    setIndeterminate(false);
    infomationTextView->setReadOnly(true);
    infomationTextView->setTabChangesFocus(true);
    withRole("reading", infomationTextView);
    folderLabel->setTextFormat(Qt::PlainText);
    folderLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    connect(closeButton, &QPushButton::clicked, this, &QWidget::close);

    auto* foot = new QHBoxLayout;
    foot->setContentsMargins(16, 0, 16, 12);
    foot->setSpacing(8);
    foot->addWidget(folderLabel, 1);
    foot->addWidget(cancelButton);
    foot->addWidget(closeButton);
    auto* layout = edgeToEdge<QVBoxLayout>(this, 12);
    layout->addWidget(infomationTextView, 1);
    auto* bar = new QHBoxLayout;
    bar->setContentsMargins(16, 0, 16, 0);
    bar->addWidget(progressInd2);
    layout->addLayout(bar);
    layout->addLayout(foot);
    closeByKeyboard(*this);
    setRunning(false);
    resize(firstSize);
}

void DownloadPanel::setIndeterminate(bool indeterminate)
{
    progressInd2->setRange(0, indeterminate ? 0 : whole);
}

void DownloadPanel::setPercent(double percent)
{
    progressInd2->setValue(qBound(0, qRound(percent), whole));
}

void DownloadPanel::setRunning(bool running)
{
    cancelButton->setEnabled(running);
}

} // namespace tessera
