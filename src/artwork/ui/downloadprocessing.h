#pragma once

#include "artwork/picturedownload.h"

#include <QObject>

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
    DownloadProcessing(Desktop& desktop, SnapFolder& folder, SnapSites& sites, DownloadLimits limits = {},
                       QObject* parent = nullptr);
    ~DownloadProcessing() override;

    /// True from the request on until the download has ended, and an alert about its end is dismissed.
    bool downloadstate() const { return m_downloadstate; }
    /// Made when it is first needed.
    DownloadPanel& panel();

public Q_SLOTS:
    void snapdownload_url(const QString& name);
    void download_process(const QUrl& url);
    void cancel();

Q_SIGNALS:
    void panelMade(DownloadPanel& panel);
    void began();
    /// A picture has come.
    void SnapChange(const QString& object);
    void statusMessage(const QString& text);

private:
    void begin(const QUrl& url);
    void takeAnswer(double expectedLength);
    void takeData(double length, double expectedLength);
    void finish(const QString& path, double expectedLength);
    void refuse();
    void showCancelled();
    void fail(const QString& reason);
    void ask(const QString& path, bool& mayReplace);
    void showStatus(const QString& text);
    void rest();

    Desktop& m_desktop;
    SnapFolder& m_folder;
    SnapSites& m_sites;
    std::unique_ptr<DownloadPanel> m_panel;
    PictureDownload m_download;
    bool m_downloadstate = false;
};

} // namespace tessera
