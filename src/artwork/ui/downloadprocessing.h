#pragma once

#include "artwork/picturedownload.h"

#include <QObject>

#include <functional>

namespace tessera {

class Desktop;
class DownloadPanel;
class SnapFolder;
class SnapSites;

/// Fetches a set's picture of the kind that is shown, and shows how far it is. One at a time.
class DownloadProcessing : public QObject
{
    Q_OBJECT

public:
    /// `downloadPanel` gives the panel, made when it is first needed.
    DownloadProcessing(Desktop& desktop, SnapFolder& folder, SnapSites& sites,
                       std::function<DownloadPanel&()> downloadPanel, DownloadLimits limits = {},
                       QObject* parent = nullptr);

    /// True from the request on until the download has ended, and an alert about its end is dismissed.
    bool downloadstate() const { return m_downloadstate; }

public Q_SLOTS:
    void snapdownload_url(const QString& name);
    void download_process(const QUrl& url);
    void cancel();

Q_SIGNALS:
    void began();
    /// A picture has come.
    void SnapChange(const QString& object);
    void statusMessage(const QString& text);

private:
    void begin(const QUrl& url);
    void takeAnswer(double expectedLength);
    void takeData(double length);
    void finish();
    void refuse();
    void showCancelled();
    void fail(const QString& reason);
    bool mayReplace();
    void showStatus(const QString& text);
    void rest();

    Desktop& m_desktop;
    SnapFolder& m_folder;
    SnapSites& m_sites;
    std::function<DownloadPanel&()> m_downloadPanel;
    PictureDownload m_download;
    double m_lExLength = unknownLength;
    double m_lDlLength = 0;
    double m_dlPercent = 0;
    bool m_downloadstate = false;
};

} // namespace tessera
