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

namespace tessera {

DownloadProcessing::DownloadProcessing(Desktop& desktop, SnapFolder& folder, SnapSites& sites,
                                       std::function<DownloadPanel&()> downloadPanel, DownloadLimits limits,
                                       QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_folder(folder)
    , m_sites(sites)
    , m_downloadPanel(std::move(downloadPanel))
    , m_download([this](const QString&) { return mayReplace(); }, limits)
{
    connect(&m_download, &PictureDownload::began, this, &DownloadProcessing::begin);
    connect(&m_download, &PictureDownload::answered, this, &DownloadProcessing::takeAnswer);
    connect(&m_download, &PictureDownload::received, this, &DownloadProcessing::takeData);
    connect(&m_download, &PictureDownload::finished, this, &DownloadProcessing::finish);
    connect(&m_download, &PictureDownload::cancelled, this, &DownloadProcessing::showCancelled);
    connect(&m_download, &PictureDownload::refused, this, &DownloadProcessing::refuse);
    connect(&m_download, &PictureDownload::failed, this, &DownloadProcessing::fail);
}

// A name that is no plain file name would lie elsewhere.
void DownloadProcessing::snapdownload_url(const QString& name)
{
    if (!isPlainFileName(name) || m_folder.snappath().isEmpty()) {
        m_desktop.beep();
        return;
    }
    if (const auto site = m_sites.siteWithoutHost()) {
        m_desktop.beep();
        Q_EMIT statusMessage(qtTrId("pictures_no_host").arg(*site));
        return;
    }
    download_process(pictureAddress(m_sites.templateOf(m_folder.kind()), name));
}

void DownloadProcessing::download_process(const QUrl& url)
{
    if (m_downloadstate) {
        m_desktop.beep();
        return;
    }
    m_download.start(url, m_folder.snappath());
}

void DownloadProcessing::cancel()
{
    m_download.cancel();
}

void DownloadProcessing::begin(const QUrl& url)
{
    DownloadPanel& panel = m_downloadPanel();
    panel.setPercent(0);
    panel.setIndeterminate(true);
    panel.setRunning(true);
    panel.folderLabel->setText(m_folder.snappath());
    m_downloadstate = true;
    showStatus(downloadtexts::requested(url));
    Q_EMIT began();
}

void DownloadProcessing::takeAnswer(double expectedLength)
{
    m_downloadPanel().setIndeterminate(false);
    m_lExLength = expectedLength;
    showStatus(downloadtexts::answered(expectedLength));
    m_lDlLength = 0;
}

void DownloadProcessing::takeData(double length)
{
    m_lDlLength = length;
    const auto text = downloadtexts::received(m_lDlLength, m_lExLength);
    if (!text)
        return;
    m_dlPercent = downloadPercent(m_lDlLength, m_lExLength).value_or(0);
    m_downloadPanel().setPercent(m_dlPercent);
    showStatus(*text);
}

void DownloadProcessing::finish()
{
    Q_EMIT SnapChange(QStringLiteral("downloadDidFinish"));
    showStatus(downloadtexts::finished(m_lExLength));
    m_desktop.playSound(QStringLiteral("Pop"));
    rest();
}

void DownloadProcessing::refuse()
{
    m_desktop.beep();
    m_lDlLength = 0;
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
    m_downloadPanel().setRunning(false);
    m_desktop.beep();
    m_desktop.runAlert({qtTrId("download_Miss"), reason, {QStringLiteral("OK")}});
    rest();
    m_desktop.log(QStringLiteral("didFailWithError"));
}

bool DownloadProcessing::mayReplace()
{
    m_desktop.beep();
    Alert alert{qtTrId("download_Message"), qtTrId("download_info"), {qtTrId("overwrite"), qtTrId("cancel")}};
    alert.style = Alert::Style::Warning;
    return m_desktop.runAlert(alert) == 0;
}

void DownloadProcessing::showStatus(const QString& text)
{
    m_downloadPanel().infomationTextView->setPlainText(text);
}

void DownloadProcessing::rest()
{
    DownloadPanel& panel = m_downloadPanel();
    panel.setIndeterminate(false);
    panel.setRunning(false);
    m_downloadstate = false;
}

} // namespace tessera
