#include "artwork/picturedownload.h"

#include "scriptedserver.h"
#include "support/smalldisk.h"
#include "support/testmain.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>

using namespace tessera;
using test::ScriptedServer;

namespace {

const QByteArray picture = QByteArray("\x89PNG\r\n\x1a\n") + QByteArray(92, 'x');
constexpr char png[] = "200 OK\r\nContent-Type: image/png";
constexpr char withoutLength[] = "HTTP/1.1 200 OK\r\nContent-Type: image/png\r\n\r\n";
constexpr char chunked[]
    = "HTTP/1.1 200 OK\r\nContent-Type: image/png\r\nTransfer-Encoding: chunked\r\n\r\n64\r\n";

} // namespace

/// Real downloads, from a server on this machine.
class PictureDownloadTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_said.clear();
        m_folder = std::make_unique<QTemporaryDir>();
        m_server = std::make_unique<ScriptedServer>();
        m_mayReplace = [this](const QString&) {
            m_said << QStringLiteral("asked");
            return false;
        };
        make({});
    }

    void aPictureTakesItsNameWhole()
    {
        serve(ScriptedServer::answer(png, picture));
        run();
        QCOMPARE(m_said, (QStringList{"began", "answered 100", "received 100 of 100", "finished 100"}));
        QCOMPARE(m_path, path("pong.png"));
        QCOMPARE(content("pong.png"), picture);
        QCOMPARE(names(), QStringList{"pong.png"});
        QVERIFY(!m_download->isUnderWay());
    }

    void onlyThePictureIsAskedFor()
    {
        serve(ScriptedServer::answer("200 OK\r\nContent-Type: image/png\r\nSet-Cookie: a=b", picture));
        run();
        QVERIFY(QFile::remove(path("pong.png")));
        run();
        QCOMPARE(m_server->requests.size(), 2);
        for (const QByteArray& request : m_server->requests) {
            QVERIFY2(request.startsWith("GET /pong.png HTTP/1.1\r\n"), request);
            QVERIFY2(request.contains("Accept-Encoding: identity\r\n"), request);
            QVERIFY2(request.contains("Cache-Control: no-cache\r\n"), request);
            QVERIFY2(request.contains("User-Agent: Tessera\r\n"), request);
            QVERIFY2(!request.toLower().contains("cookie") && !request.contains("Referer"), request);
        }
    }

    void withoutALengthItIsUnknownToTheEnd_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("up to the end") << withoutLength + picture;
        QTest::newRow("in pieces") << chunked + picture + "\r\n0\r\n\r\n";
    }

    void withoutALengthItIsUnknownToTheEnd()
    {
        QFETCH(QByteArray, answer);
        serve(answer);
        run();
        QCOMPARE(m_said.first(2), (QStringList{"began", "answered -1"}));
        QCOMPARE(m_said.constLast(), QStringLiteral("finished -1"));
        QCOMPARE(content("pong.png"), picture);
    }

    void whatIsNoPictureIsRefused_data()
    {
        QTest::addColumn<QByteArray>("answer");
        const QByteArray page("<!DOCTYPE html><p>There is nothing here.");
        const auto answer = &ScriptedServer::answer;
        QTest::newRow("a page") << answer("200 OK\r\nContent-Type: text/html", page);
        QTest::newRow("a page that is not found") << answer("404 Not Found\r\nContent-Type: text/html", page);
        QTest::newRow("not found, with nothing") << answer("404 Not Found", {});
        QTest::newRow("a server's error") << answer("500 Oops\r\nContent-Type: text/plain", page);
        QTest::newRow("a password is wanted")
            << answer("401 No\r\nWWW-Authenticate: Basic realm=\"x\"\r\nContent-Type: text/html", page);
        QTest::newRow("no type") << answer("200 OK", picture);
        QTest::newRow("several to choose from") << answer("300 Choices\r\nContent-Type: image/png", picture);
        QTest::newRow("the last of those") << answer("399 Odd\r\nContent-Type: image/png", picture);
        QTest::newRow("nowhere to go on to") << answer("304 Not Modified\r\nContent-Type: image/png", {});
        QTest::newRow("a page that calls itself a picture") << answer(png, page);
        QTest::newRow("a compressed picture")
            << answer("200 OK\r\nContent-Type: image/png\r\nContent-Encoding: gzip",
                      QByteArray("\x1f\x8b\x08\x00\x00\x00\x00\x00", 8) + page);
        QTest::newRow("less than the start of a picture") << answer(png, picture.left(8));
        QTest::newRow("nothing") << answer(png, {});
    }

    void whatIsNoPictureIsRefused()
    {
        QFETCH(QByteArray, answer);
        serve(answer);
        run();
        QCOMPARE(m_said.constFirst(), QStringLiteral("began"));
        QCOMPARE(m_said.constLast(), QStringLiteral("refused"));
        QCOMPARE(m_said.filter(QStringLiteral("finished")), QStringList());
        QCOMPARE(names(), QStringList());
        QVERIFY(!m_download->isUnderWay());
    }

    void thePicturesTypeCountsNotTheStatus_data()
    {
        QTest::addColumn<QByteArray>("status");
        for (const char* status : {"299 Odd", "400 Bad Request", "404 Not Found", "500 Oops"})
            QTest::newRow(status) << QByteArray(status);
    }

    void thePicturesTypeCountsNotTheStatus()
    {
        QFETCH(QByteArray, status);
        serve(ScriptedServer::answer(status + "\r\nContent-Type: image/png", picture));
        run();
        QCOMPARE(m_said.constLast(), QStringLiteral("finished 100"));
        QCOMPARE(content("pong.png"), picture);
    }

    void aCutOffPictureOfAnErrorIsNone()
    {
        serve("HTTP/1.1 404 Not Found\r\nContent-Type: image/png\r\nContent-Length: 1000\r\n\r\n" + picture);
        run();
        QVERIFY2(m_said.constLast().startsWith(QStringLiteral("failed")), qPrintable(m_said.constLast()));
        QCOMPARE(names(), QStringList());
    }

    void whatIsTooLargeIsRefused_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("by what it says") << ScriptedServer::answer(png, picture);
        QTest::newRow("by what comes") << withoutLength + picture;
    }

    void whatIsTooLargeIsRefused()
    {
        QFETCH(QByteArray, answer);
        serve(answer);
        make({.length = picture.size() - 1});
        run();
        QCOMPARE(m_said.constLast(), QStringLiteral("refused"));
        QCOMPARE(names(), QStringList());
        make({.length = picture.size()});
        run();
        QCOMPARE(names(), QStringList{"pong.png"});
    }

    void atMost64MegabytesAreTaken()
    {
        serve("HTTP/1.1 200 OK\r\nContent-Type: image/png\r\nContent-Length: 67108865\r\n\r\n" + picture);
        run();
        QCOMPARE(m_said, (QStringList{"began", "refused"}));
        serve(withoutLength + picture + QByteArray(67108864 - 99, 'x'));
        run();
        QCOMPARE(m_said.constLast(), QStringLiteral("refused"));
        QCOMPARE(names(), QStringList());
    }

    void aSilentServerTimesOut_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("at once") << QByteArray();
        QTest::newRow("within the head") << QByteArray("HTTP/1.1 200 OK\r\nContent-");
        QTest::newRow("within the picture") << ScriptedServer::answer(png, picture).chopped(50);
    }

    void aSilentServerTimesOut()
    {
        QFETCH(QByteArray, answer);
        serve(answer, ScriptedServer::Then::Wait);
        make({.silence = std::chrono::milliseconds(300)});
        run();
        QCOMPARE(m_said.constLast(), QStringLiteral("failed download_silent"));
        QCOMPARE(names(), QStringList());
    }

    void whatIsCutOffFails_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::newRow("before the answer") << QByteArray();
        QTest::newRow("within the picture") << ScriptedServer::answer(png, picture).chopped(50);
        QTest::newRow("one byte too few") << ScriptedServer::answer(png, picture).chopped(1);
        QTest::newRow("within a piece") << chunked + picture.chopped(50);
        QTest::newRow("before the last piece") << chunked + picture + "\r\n";
    }

    void whatIsCutOffFails()
    {
        QFETCH(QByteArray, answer);
        serve(answer);
        run();
        QVERIFY2(m_said.constLast().startsWith(QStringLiteral("failed ")), qPrintable(m_said.join(u'\n')));
        QCOMPARE(names(), QStringList());
    }

    void aRefusedConnectionFails()
    {
        m_server->close();
        run();
        QVERIFY2(m_said.constLast().startsWith(QStringLiteral("failed ")), qPrintable(m_said.join(u'\n')));
    }

    void aRedirectIsFollowedUnderTheNameThatWasAskedFor()
    {
        serve(ScriptedServer::answer("302 Found\r\nContent-Type: text/html\r\nLocation: /img/4711.png", "x"));
        m_server->answers["/img/4711.png"] = {ScriptedServer::answer(png, picture)};
        run();
        QCOMPARE(m_said, (QStringList{"began", "answered 100", "received 100 of 100", "finished 100"}));
        QCOMPARE(names(), QStringList{"pong.png"});
    }

    void aRedirectDoesNotLeaveTheWeb()
    {
        serve(ScriptedServer::answer("302 Found\r\nLocation: file:///etc/passwd", {}));
        run();
        QVERIFY2(m_said.constLast().startsWith(QStringLiteral("failed ")), qPrintable(m_said.join(u'\n')));
        QCOMPARE(names(), QStringList());
    }

    void redirectsHaveAnEnd()
    {
        serve(ScriptedServer::answer("302 Found\r\nLocation: /pong.png", {}));
        run();
        QVERIFY2(m_said.constLast().startsWith(QStringLiteral("failed ")), qPrintable(m_said.join(u'\n')));
        QCOMPARE(m_server->requests.size(), 6);
    }

    void onlyWebAddressesAreFetched_data()
    {
        QTest::addColumn<QUrl>("url");
        QTest::newRow("of an empty template") << QUrl(".png");
        QTest::newRow("a file") << QUrl("file:///etc/pong.png");
        QTest::newRow("content of its own") << QUrl("data:image/png;base64,iVBORw0KGgo.png");
        QTest::newRow("ftp") << QUrl("ftp://127.0.0.1/pong.png");
        QTest::newRow("nothing") << QUrl();
    }

    void onlyWebAddressesAreFetched()
    {
        QFETCH(QUrl, url);
        run(url);
        QCOMPARE(m_said, (QStringList{"began", "failed download_no_address"}));
        QCOMPARE(names(), QStringList());
    }

    void anExistingFileIsReplacedOnlyAfterAYes_data()
    {
        QTest::addColumn<bool>("answer");
        QTest::addColumn<QByteArray>("left");
        QTest::newRow("yes") << true << picture;
        QTest::newRow("no") << false << QByteArray("mine");
    }

    void anExistingFileIsReplacedOnlyAfterAYes()
    {
        QFETCH(bool, answer);
        write("pong.png", "mine");
        serve(ScriptedServer::answer(png, picture));
        QString asked;
        m_mayReplace = [&](const QString& file) {
            asked = file;
            m_said << QStringLiteral("asked");
            // As an alert does: the rest comes while it stands.
            wait(100);
            return answer;
        };
        run();
        QCOMPARE(asked, path("pong.png"));
        const QStringList rest
            = answer ? QStringList{"received 100 of 100", "finished 100"} : QStringList{"cancelled"};
        QCOMPARE(m_said, (QStringList{"began", "answered 100", "asked"} + rest));
        QTEST(content("pong.png"), "left");
        QCOMPARE(names(), QStringList{"pong.png"});
        QVERIFY(!m_download->isUnderWay());
    }

    void whatFailsBehindTheQuestionIsToldAfterIt_data()
    {
        QTest::addColumn<QByteArray>("answer");
        QTest::addColumn<QString>("outcome");
        QTest::newRow("cut off") << ScriptedServer::answer(png, picture).chopped(1) << "failed ";
        QTest::newRow("too large") << withoutLength + picture + picture << "refused";
        QTest::newRow("no picture") << ScriptedServer::answer(png, QByteArray(100, '<')) << "refused";
    }

    void whatFailsBehindTheQuestionIsToldAfterIt()
    {
        QFETCH(QByteArray, answer);
        QFETCH(QString, outcome);
        write("pong.png", "mine");
        serve(answer);
        m_mayReplace = [&](const QString&) {
            wait(100);
            m_said << QStringLiteral("yes");
            return true;
        };
        make({.length = picture.size()});
        run();
        QCOMPARE(m_said[m_said.size() - 2], QStringLiteral("yes"));
        QVERIFY2(m_said.constLast().startsWith(outcome), qPrintable(m_said.join(u'\n')));
        QCOMPARE(content("pong.png"), QByteArray("mine"));
        QCOMPARE(names(), QStringList{"pong.png"});
    }

    void theLargestPictureMayWaitForTheAnswer()
    {
        write("pong.png", "mine");
        serve(ScriptedServer::answer(png, picture));
        m_mayReplace = [&](const QString&) {
            wait(100);
            return true;
        };
        make({.length = picture.size()});
        run();
        QCOMPARE(content("pong.png"), picture);
    }

    void aFileThatComesMeanwhileIsAskedAboutToo()
    {
        serve(ScriptedServer::answer(png, picture));
        connect(m_download.get(), &PictureDownload::received, this, [this] { write("pong.png", "mine"); });
        run();
        QCOMPARE(m_said.last(2), (QStringList{"asked", "cancelled"}));
        QCOMPARE(content("pong.png"), QByteArray("mine"));
        QCOMPARE(names(), QStringList{"pong.png"});
    }

    void theQuestionMayOutliveTheDownload()
    {
        write("pong.png", "mine");
        serve(ScriptedServer::answer(png, picture));
        m_mayReplace = [this](const QString&) {
            m_download.reset();
            wait(50);
            return true;
        };
        m_download->start(m_server->url("/pong.png"), m_folder->path());
        QTRY_VERIFY(!m_download);
        wait(100);
        QCOMPARE(content("pong.png"), QByteArray("mine"));
        QCOMPARE(names(), QStringList{"pong.png"});
    }

    void onlyOneIsUnderWay()
    {
        serve(QByteArray(), ScriptedServer::Then::Wait);
        QVERIFY(m_download->start(m_server->url("/pong.png"), m_folder->path()));
        QVERIFY(!m_download->start(m_server->url("/qix.png"), m_folder->path()));
        QTRY_COMPARE(m_server->requests.size(), 1);
        m_download->cancel();
        QCOMPARE(m_said, (QStringList{"began", "cancelled"}));
        QVERIFY(!m_download->isUnderWay());
        m_download->cancel();
        QCOMPARE(m_said.size(), 2);
    }

    void aCancelledDownloadLeavesNothing()
    {
        serve(ScriptedServer::answer(png, picture).chopped(50), ScriptedServer::Then::Wait);
        connect(m_download.get(), &PictureDownload::received, this, [this] {
            QVERIFY(!QFile::exists(path("pong.png")));
            m_download->cancel();
        });
        run();
        QCOMPARE(m_said.constLast(), QStringLiteral("cancelled"));
        QCOMPARE(names(), QStringList());
    }

    void whatIsCancelledAtOnceIsNotAskedFor()
    {
        connect(m_download.get(), &PictureDownload::began, this, [this] { m_download->cancel(); });
        QVERIFY(m_download->start(m_server->url("/pong.png"), m_folder->path()));
        QCOMPARE(m_said, (QStringList{"began", "cancelled"}));
        QVERIFY(!m_download->isUnderWay());
        m_download->disconnect(this);
        make({});
        serve(ScriptedServer::answer(png, picture));
        run();
        QCOMPARE(m_server->requests.size(), 1);
    }

    void anotherMayBeginWhereOneEnds()
    {
        serve(ScriptedServer::answer(png, picture));
        m_server->answers["/qix.png"] = {ScriptedServer::answer(png, picture)};
        const auto first = std::make_shared<bool>(true);
        connect(m_download.get(), &PictureDownload::answered, this, [this, first] {
            if (!std::exchange(*first, false))
                return;
            m_download->cancel();
            QVERIFY(m_download->start(m_server->url("/qix.png"), m_folder->path()));
        });
        run();
        QCOMPARE(m_said,
                 (QStringList{"began", "answered 100", "cancelled", "began", "answered 100",
                              "received 100 of 100", "finished 100"}));
        QCOMPARE(names(), QStringList{"qix.png"});
    }

    void aFolderThatGoesMeanwhileIsAFailure()
    {
        serve(ScriptedServer::answer(png, picture));
        connect(m_download.get(), &PictureDownload::received, this, [this] { QVERIFY(m_folder->remove()); });
        run();
        QCOMPARE(m_said,
                 (QStringList{"began", "answered 100", "received 100 of 100", "failed failure_write"}));
        QVERIFY(!m_download->isUnderWay());
    }

    void aFullDiskIsAFailure()
    {
        const test::SmallDisk disk(QFile::encodeName(m_folder->path()));
        if (!disk.isThere())
            QSKIP("No disk may be mounted here.");
        serve(ScriptedServer::answer(png, picture + QByteArray(200'000, 'x')));
        run();
        QCOMPARE(m_said.constLast(), QStringLiteral("failed failure_write"));
        QCOMPARE(names(), QStringList());
    }

    void aSuggestedNameStaysInTheFolder()
    {
        serve(ScriptedServer::answer("200 OK\r\nContent-Type: image/png\r\nContent-Disposition: attachment; "
                                     "filename=\"../../qix.png\"",
                                     picture));
        run();
        QCOMPARE(m_path, path("qix.png"));
        QCOMPARE(names(), QStringList{"qix.png"});
    }

    void withoutAnyNameItFails()
    {
        m_server->answers["/..."] = {ScriptedServer::answer(png, picture)};
        run(m_server->url("/..."));
        QCOMPARE(m_said.constLast(), QStringLiteral("failed download_no_name"));
        QCOMPARE(names(), QStringList());
    }

    void aFolderThatIsGoneIsAFailure()
    {
        serve(ScriptedServer::answer(png, picture));
        QVERIFY(m_folder->remove());
        run();
        QCOMPARE(m_said, (QStringList{"began", "answered 100", "failed failure_write"}));
        QVERIFY(!m_download->isUnderWay());
    }

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    void make(DownloadLimits limits)
    {
        m_download = std::make_unique<PictureDownload>(limits);
        const PictureDownload* download = m_download.get();
        connect(download, &PictureDownload::asked, this,
                [this](const QString& file, bool& mayReplace) { mayReplace = m_mayReplace(file); });
        connect(download, &PictureDownload::began, this, [this] { m_said << QStringLiteral("began"); });
        connect(download, &PictureDownload::answered, this,
                [this](double expected) { m_said << QStringLiteral("answered %1").arg(expected); });
        connect(download, &PictureDownload::received, this, [this](double length, double expected) {
            m_said << QStringLiteral("received %1 of %2").arg(length).arg(expected);
        });
        connect(download, &PictureDownload::finished, this, [this](const QString& file, double expected) {
            m_path = file;
            m_said << QStringLiteral("finished %1").arg(expected);
        });
        connect(download, &PictureDownload::cancelled, this,
                [this] { m_said << QStringLiteral("cancelled"); });
        connect(download, &PictureDownload::refused, this, [this] { m_said << QStringLiteral("refused"); });
        connect(download, &PictureDownload::failed, this,
                [this](const QString& reason) { m_said << QStringLiteral("failed ") + reason; });
    }

    void serve(const QByteArray& answer, ScriptedServer::Then then = ScriptedServer::Then::Close)
    {
        m_server->answers["/pong.png"] = {answer, then};
    }

    void run() { run(m_server->url("/pong.png")); }

    void run(const QUrl& url)
    {
        m_said.clear();
        QVERIFY(m_download->start(url, m_folder->path()));
        QTRY_VERIFY(!m_download->isUnderWay());
    }

    static void wait(int milliseconds)
    {
        QEventLoop loop;
        QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    }

    QByteArray content(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
        QCOMPARE(file.write(bytes), bytes.size());
    }

    QStringList names() const
    {
        return QDir(m_folder->path()).entryList(QDir::Files | QDir::Hidden | QDir::System);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<ScriptedServer> m_server;
    std::function<bool(const QString&)> m_mayReplace;
    std::unique_ptr<PictureDownload> m_download;
    QStringList m_said;
    QString m_path;
};

TESSERA_TEST(PictureDownloadTest);
#include "picturedownloadtest.moc"
