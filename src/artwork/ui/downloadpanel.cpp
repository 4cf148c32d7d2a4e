#include "artwork/ui/downloadpanel.h"

#include "widgets/closekeys.h"

#include <QHBoxLayout>
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
    , progressInd2(new QProgressBar)
    , infomationTextView(new QPlainTextEdit)
    , cancelButton(new QPushButton(qtTrId("download_stop")))
    , closeButton(new QPushButton(qtTrId("download_close")))
    , folderLabel(new QLabel)
{
    setObjectName(QStringLiteral("downloadPanel"));
    setWindowTitle(qtTrId("download_panel"));
    setProperty("role", QStringLiteral("panel"));
    setAttribute(Qt::WA_StyledBackground);
    progressInd2->setObjectName(QStringLiteral("progressInd2"));
    progressInd2->setAccessibleName(qtTrId("download_progress"));
    progressInd2->setTextVisible(false);
    setIndeterminate(false);
    infomationTextView->setObjectName(QStringLiteral("downloadTextView"));
    infomationTextView->setAccessibleName(qtTrId("download_panel"));
    infomationTextView->setReadOnly(true);
    infomationTextView->setTabChangesFocus(true);
    infomationTextView->setProperty("role", QStringLiteral("reading"));
    folderLabel->setTextFormat(Qt::PlainText);
    folderLabel->setProperty("role", QStringLiteral("faint"));
    folderLabel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    cancelButton->setObjectName(QStringLiteral("downloadCancelButton"));
    closeButton->setObjectName(QStringLiteral("downloadCloseButton"));
    connect(closeButton, &QPushButton::clicked, this, &QWidget::close);

    auto* foot = new QHBoxLayout;
    foot->setContentsMargins(16, 0, 16, 12);
    foot->setSpacing(8);
    foot->addWidget(folderLabel, 1);
    foot->addWidget(cancelButton);
    foot->addWidget(closeButton);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(12);
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
