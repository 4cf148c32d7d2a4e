#pragma once

#include "artwork/pictureanswer.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QSaveFile>

#include <chrono>
#include <memory>

namespace tessera {

struct DownloadLimits {
    std::chrono::milliseconds silence{std::chrono::seconds(10)}; ///< of the server
    qint64 length = largestPicture; ///< in bytes
};

/// Fetches a picture into a folder, one at a time. It grows in a file beside its destination and takes its
/// name whole, or not at all. The signals come in their order; each of the last four is the end.
class PictureDownload : public QObject
{
    Q_OBJECT

public:
    explicit PictureDownload(DownloadLimits limits = {}, QObject* parent = nullptr);
    ~PictureDownload() override;

    bool isUnderWay() const { return m_job != nullptr; }
    /// False, and nothing happens, where one is under way.
    bool start(const QUrl& url, const QString& folder);
    /// As if the question had been answered with no.
    void cancel();

Q_SIGNALS:
    void began(const QUrl& url);
    /// A picture will come, of so many bytes; unknownLength where the server does not tell.
    void answered(double expectedLength);
    void received(double length, double expectedLength);
    /// Whether the file at a path may be replaced; not where nobody says so. Whoever hears it may take their
    /// time and let events through.
    void asked(const QString& path, bool& mayReplace);

    void finished(const QString& path, double expectedLength);
    void cancelled();
    /// It is no picture, or too large for one.
    void refused();
    void failed(const QString& reason);

private:
    struct Job;

    void ask(const QUrl& url);
    void hear(void (QNetworkReply::*said)(), void (PictureDownload::*step)());
    void takeAnswer();
    void openFile();
    void takeContent();
    void takePiece(const QByteArray& piece);
    void end();
    void keep();
    bool mayTake(const QString& path);

    bool isJob(const std::weak_ptr<Job>& job) const;
    void refuse();
    void fail(const QString& reason);
    void failFile();
    std::optional<QString> reasonOfError() const;
    void stop();

    DownloadLimits m_limits;
    std::unique_ptr<QNetworkAccessManager> m_network; // made for the first download
    std::shared_ptr<Job> m_job; // null when none is under way
};

} // namespace tessera
