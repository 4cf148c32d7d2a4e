#include "artwork/ui/downloadprocessing.h"

#include "artwork/downloadtexts.h"
#include "artwork/picturelookup.h"
#include "artwork/picturesites.h"
#include "artwork/ui/downloadpanel.h"
#include "artwork/ui/snapfolder.h"
#include "artwork/ui/snapsites.h"
#include "platform/desktop.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>

namespace tessera {

DownloadProcessing::DownloadProcessing(Desktop& desktop, SnapFolder& folder, SnapSites& sites,
                                       DownloadLimits limits, QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_folder(folder)
    , m_sites(sites)
    , m_download(limits)
{
    connect(&m_download, &PictureDownload::began, this, &DownloadProcessing::begin);
    connect(&m_download, &PictureDownload::answered, this, &DownloadProcessing::takeAnswer);
    connect(&m_download, &PictureDownload::received, this, &DownloadProcessing::takeData);
    connect(&m_download, &PictureDownload::asked, this, &DownloadProcessing::ask);
    connect(&m_download, &PictureDownload::finished, this, &DownloadProcessing::finish);
    connect(&m_download, &PictureDownload::cancelled, this, &DownloadProcessing::showCancelled);
    connect(&m_download, &PictureDownload::refused, this, &DownloadProcessing::refuse);
    connect(&m_download, &PictureDownload::failed, this, &DownloadProcessing::fail);
}

DownloadProcessing::~DownloadProcessing() = default;

DownloadPanel& DownloadProcessing::panel()
{
    if (!m_panel) {
        m_panel = std::make_unique<DownloadPanel>();
        connect(m_panel->cancelButton, &QPushButton::clicked, this, &DownloadProcessing::cancel);
        Q_EMIT panelMade(*m_panel);
    }
    return *m_panel;
}

// A name that is no plain file name would lie elsewhere.
void DownloadProcessing::snapdownload_url(const QString& name)
{
    if (!isPlainFileName(name) || m_folder.snappath().isEmpty())
        return m_desktop.beep();
    if (const auto site = m_sites.siteWithoutHost()) {
        m_desktop.beep();
        Q_EMIT statusMessage(qtTrId("pictures_no_host").arg(*site));
        return;
    }
    download_process(pictureAddress(m_sites.templateOf(m_folder.kind()), name));
}

void DownloadProcessing::download_process(const QUrl& url)
{
    if (m_downloadstate)
        return m_desktop.beep();
    m_download.start(url, m_folder.snappath());
}

void DownloadProcessing::cancel()
{
    m_download.cancel();
}

void DownloadProcessing::begin(const QUrl& url)
{
    panel().setPercent(0);
    panel().setIndeterminate(true);
    panel().setRunning(true);
    panel().folderLabel->setText(m_folder.snappath());
    m_downloadstate = true;
    showStatus(downloadtexts::requested(url));
    Q_EMIT began();
}

void DownloadProcessing::takeAnswer(double expectedLength)
{
    panel().setIndeterminate(false);
    showStatus(downloadtexts::answered(expectedLength));
}

void DownloadProcessing::takeData(double length, double expectedLength)
{
    const auto text = downloadtexts::received(length, expectedLength);
    if (!text)
        return;
    panel().setPercent(downloadPercent(length, expectedLength).value_or(0));
    showStatus(*text);
}

void DownloadProcessing::finish(const QString&, double expectedLength)
{
    Q_EMIT SnapChange(QStringLiteral("downloadDidFinish"));
    showStatus(downloadtexts::finished(expectedLength));
    m_desktop.playSound(QStringLiteral("Pop"));
    rest();
}

void DownloadProcessing::refuse()
{
    m_desktop.beep();
    rest();
    showStatus(downloadtexts::notAnImage);
}

void DownloadProcessing::showCancelled()
{
    showStatus(downloadtexts::cancelled);
    rest();
}

// While the alert stands, nothing else is fetched.
void DownloadProcessing::fail(const QString& reason)
{
    showStatus(downloadtexts::failed);
    panel().setRunning(false);
    m_desktop.beep();
    m_desktop.runAlert({qtTrId("download_Miss"), reason, {QStringLiteral("OK")}});
    rest();
    m_desktop.log(QStringLiteral("didFailWithError"));
}

void DownloadProcessing::ask(const QString&, bool& mayReplace)
{
    m_desktop.beep();
    Alert alert{qtTrId("download_Message"), qtTrId("download_info"), {qtTrId("overwrite"), qtTrId("cancel")}};
    alert.style = Alert::Style::Warning;
    mayReplace = m_desktop.runAlert(alert) == 0;
}

void DownloadProcessing::showStatus(const QString& text)
{
    panel().infomationTextView->setPlainText(text);
}

void DownloadProcessing::rest()
{
    panel().setIndeterminate(false);
    panel().setRunning(false);
    m_downloadstate = false;
}

} // namespace tessera
