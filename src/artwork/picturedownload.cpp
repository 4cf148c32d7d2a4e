#include "artwork/picturedownload.h"

#include "core/failure.h"
#include "platform/websites.h"

#include <QFileInfo>
#include <QPointer>
#include <QScopedPointer>

namespace tessera {

namespace {

constexpr int mostRedirects = 5;
constexpr qint64 pieceLength = qint64{1} << 16;

// Nothing but the picture: no cache, no cookies, no passwords, and its bytes as they are counted.
QNetworkRequest requestFor(const QUrl& url, std::chrono::milliseconds silence)
{
    QNetworkRequest request(url);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    for (const auto attribute :
         {QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::CookieSaveControlAttribute,
          QNetworkRequest::AuthenticationReuseAttribute})
        request.setAttribute(attribute, QNetworkRequest::Manual);
    request.setRawHeader("Accept-Encoding", "identity");
    request.setRawHeader("User-Agent", "Tessera");
    request.setMaximumRedirectsAllowed(mostRedirects);
    request.setTransferTimeout(static_cast<int>(silence.count()));
    return request;
}

} // namespace

struct PictureDownload::Job {
    QString folder;
    std::unique_ptr<QNetworkReply, QScopedPointerDeleteLater> reply;
    std::unique_ptr<QSaveFile> file;
    double expected = unknownLength;
    qint64 length = 0; // what has come
    QByteArray start; // of the content
    bool isAnswered = false;
    bool isAsking = false;
    bool mayReplace = false;
    bool isTooLarge = false;
};

PictureDownload::PictureDownload(DownloadLimits limits, QObject* parent)
    : QObject(parent)
    , m_limits(limits)
{
}

PictureDownload::~PictureDownload()
{
    stop();
}

bool PictureDownload::start(const QUrl& url, const QString& folder)
{
    if (isUnderWay())
        return false;
    m_job = std::make_shared<Job>();
    // Deliberate: that of the request. Another kind of picture may be shown by the time the answer comes.
    m_job->folder = folder;
    const std::weak_ptr<Job> job = m_job;
    Q_EMIT began(url);
    if (isJob(job))
        ask(url);
    return true;
}

// Other schemes could name files of this machine.
void PictureDownload::ask(const QUrl& url)
{
    const QString address = url.toString(QUrl::FullyEncoded);
    if (!webAddress(address))
        return fail(Failure{"download_no_address", {address}}.text());
    if (!m_network)
        m_network = std::make_unique<QNetworkAccessManager>();
    m_job->reply.reset(m_network->get(requestFor(url, m_limits.silence)));
    hear(&QNetworkReply::metaDataChanged, &PictureDownload::takeAnswer);
    hear(&QNetworkReply::readyRead, &PictureDownload::takeContent);
    hear(&QNetworkReply::finished, &PictureDownload::end);
}

// Queued: the question runs an event loop in which the reply may be deleted, and that must not happen within
// a signal of the reply itself.
void PictureDownload::hear(void (QNetworkReply::*said)(), void (PictureDownload::*step)())
{
    const std::weak_ptr<Job> job = m_job;
    const auto take = [this, job, step] {
        if (isJob(job))
            (this->*step)();
    };
    connect(m_job->reply.get(), said, this, take, Qt::QueuedConnection);
}

void PictureDownload::cancel()
{
    if (!isUnderWay())
        return;
    stop();
    Q_EMIT cancelled();
}

void PictureDownload::takeAnswer()
{
    const QNetworkReply& reply = *m_job->reply;
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const bool isRedirect = status >= 300 && status < 400;
    if (m_job->isAnswered || status == 0 || isRedirect)
        return;
    m_job->isAnswered = true;
    m_job->expected = expectedLength(reply.rawHeader("Content-Length"));
    if (!isPictureAnswer(reply.rawHeader("Content-Type"))
        || m_job->expected > static_cast<double>(m_limits.length))
        return refuse();
    const std::weak_ptr<Job> job = m_job;
    Q_EMIT answered(m_job->expected);
    if (isJob(job))
        openFile();
}

// The address is the one that was asked for, wherever the server sent us on to.
void PictureDownload::openFile()
{
    const QNetworkReply& reply = *m_job->reply;
    const QUrl url = reply.request().url();
    const auto name = pictureFileName(reply.rawHeader("Content-Disposition"), url);
    if (!name)
        return fail(Failure{"download_no_name", {url.toString()}}.text());
    const QString path = m_job->folder + u'/' + *name;
    if (!mayTake(path))
        return;
    m_job->file = std::make_unique<QSaveFile>(path);
    if (!m_job->file->open(QIODevice::WriteOnly))
        return failFile();
    // What came while the question stood.
    if (m_job->reply->isFinished())
        end();
    else
        takeContent();
}

// While the question stands, what comes waits in the reply.
void PictureDownload::takeContent()
{
    const std::weak_ptr<Job> job = m_job;
    if (m_job->isAsking && m_job->reply->bytesAvailable() > m_limits.length) {
        m_job->isTooLarge = true;
        m_job->reply->abort();
    }
    while (isJob(job) && m_job->file && m_job->reply->bytesAvailable() > 0)
        takePiece(m_job->reply->read(pieceLength));
}

void PictureDownload::takePiece(const QByteArray& piece)
{
    m_job->length += piece.size();
    if (m_job->start.size() < imageStart)
        m_job->start += piece.left(imageStart - m_job->start.size());
    const bool isOther = m_job->start.size() == imageStart && !startsLikeImage(m_job->start);
    if (isOther || m_job->length > m_limits.length)
        return refuse();
    if (m_job->file->write(piece) != piece.size())
        return failFile();
    Q_EMIT received(static_cast<double>(m_job->length), m_job->expected);
}

void PictureDownload::end()
{
    if (m_job->isAsking)
        return;
    if (m_job->isTooLarge)
        return refuse();
    if (const auto reason = reasonOfError())
        return fail(*reason);
    // No answer opened one, as with a redirect that names no address.
    if (!m_job->file)
        return refuse();
    const std::weak_ptr<Job> job = m_job;
    takeContent();
    if (isJob(job))
        keep();
}

void PictureDownload::keep()
{
    if (!startsLikeImage(m_job->start))
        return refuse();
    const QString path = m_job->file->fileName();
    // Somebody else may have put one there meanwhile.
    if (!mayTake(path))
        return;
    if (!m_job->file->commit())
        return failFile();
    const double expected = m_job->expected;
    stop();
    Q_EMIT finished(path, expected);
}

bool PictureDownload::mayTake(const QString& path)
{
    if (m_job->mayReplace || !QFileInfo::exists(path))
        return true;
    const QPointer<PictureDownload> alive(this);
    const std::weak_ptr<Job> job = m_job;
    m_job->isAsking = true;
    bool answer = false;
    Q_EMIT asked(path, answer);
    if (!alive || !isJob(job))
        return false;
    m_job->isAsking = false;
    m_job->mayReplace = answer;
    if (!answer)
        cancel();
    return answer;
}

// A slot may have ended the job, and begun another.
bool PictureDownload::isJob(const std::weak_ptr<Job>& job) const
{
    return m_job && m_job == job.lock();
}

void PictureDownload::refuse()
{
    stop();
    Q_EMIT refused();
}

void PictureDownload::fail(const QString& reason)
{
    stop();
    Q_EMIT failed(reason);
}

void PictureDownload::failFile()
{
    const QSaveFile& file = *m_job->file;
    fail(Failure{"failure_write", {file.fileName(), file.errorString()}}.text());
}

// The status of an error does not count where a whole picture came with it.
std::optional<QString> PictureDownload::reasonOfError() const
{
    const QNetworkReply& reply = *m_job->reply;
    const int status = reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    const qint64 whole = m_job->length + reply.bytesAvailable();
    const bool isWhole = m_job->expected == unknownLength || static_cast<double>(whole) == m_job->expected;
    if (reply.error() == QNetworkReply::NoError || (status >= 400 && m_job->file && isWhole))
        return std::nullopt;
    // Only the time-out ends a reply that is still connected; stop() disconnects it first.
    if (reply.error() == QNetworkReply::OperationCanceledError)
        return Failure{"download_silent", {reply.url().host()}}.text();
    return reply.errorString();
}

// Disconnects the reply before it ends it. A file that was begun is removed with the job.
void PictureDownload::stop()
{
    const std::shared_ptr<Job> job = std::exchange(m_job, nullptr);
    if (!job || !job->reply)
        return;
    job->reply->disconnect(this);
    job->reply->abort();
}

} // namespace tessera
