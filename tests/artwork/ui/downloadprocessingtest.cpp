#include "artwork/ui/downloadprocessing.h"

#include "../scriptedserver.h"
#include "artwork/ui/downloadpanel.h"
#include "artwork/ui/snapfolder.h"
#include "artwork/ui/snapsites.h"
#include "staging.h"
#include "support/installedtexts.h"
#include "support/testmain.h"

#include <QFile>
#include <QLabel>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>

using namespace tessera;
using test::PictureStaging;
using test::ScriptedServer;

namespace {

const QByteArray picture = QByteArray("\x89PNG\r\n\x1a\n") + QByteArray(92, 'x');
constexpr char png[] = "200 OK\r\nContent-Type: image/png";

/// It does something while an alert stands.
class BusyDesktop : public test::ScriptedDesktop
{
public:
    std::function<void()> meanwhile;
    std::function<void(const QString& sound)> heard;

    void playSound(const QString& name) override
    {
        if (heard)
            heard(name);
        ScriptedDesktop::playSound(name);
    }

    int runAlert(const Alert& alert) override
    {
        if (meanwhile)
            meanwhile();
        return ScriptedDesktop::runAlert(alert);
    }
};

} // namespace

/// Real downloads, from a server on this machine, as the panel shows them.
class DownloadProcessingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staging = std::make_unique<PictureStaging>();
        m_desktop = std::make_unique<BusyDesktop>();
        m_server = std::make_unique<ScriptedServer>();
        m_staging->defaults.setIndex(keys::Snapdownsite, 3);
        m_staging->defaults.setText(keys::snapdownloadPath, address("/{$gamename}"));
        m_folder = std::make_unique<SnapFolder>(*m_desktop, m_staging->defaults);
        m_folder->Setsnapfolder();
        m_sites = std::make_unique<SnapSites>(m_staging->defaults);
        m_processing = std::make_unique<DownloadProcessing>(
            *m_desktop, *m_folder, *m_sites, DownloadLimits{.silence = std::chrono::milliseconds(400)});
        m_panel = &m_processing->panel();
        m_texts.clear();
        connect(m_panel->infomationTextView, &QPlainTextEdit::textChanged, this,
                [this] { m_texts << m_panel->infomationTextView->toPlainText(); });
        m_changes.clear();
        connect(m_processing.get(), &DownloadProcessing::SnapChange, this,
                [this](const QString& object) { m_changes << object; });
    }

    void cleanup()
    {
        m_processing.reset();
        m_server.reset();
    }

    void aPictureIsFetchedWithEveryStepShown()
    {
        serve("/pong.png", ScriptedServer::answer(png, picture));
        download("pong");
        QCOMPARE(steps(),
                 (QStringList{"Snap Download: Request...\n" + m_server->url("/pong.png").toString() + "\n\n",
                              "Snap Download:  100 byte\n", "Snap Download:  100 byte...\n",
                              "Snap Download:  100 byte  Finish.\n"}));
        QCOMPARE(m_changes, QStringList{"downloadDidFinish"});
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"sound Pop"});
        QCOMPARE(content("snap/pong.png"), picture);
        QCOMPARE(m_panel->progressInd2->maximum(), 100);
    }

    void thePicturesAreRefreshedOnceTheFileIsThere()
    {
        serve("/pong.png", ScriptedServer::answer(png, picture));
        bool wasThere = false;
        connect(m_processing.get(), &DownloadProcessing::SnapChange, this,
                [&] { wasThere = QFile::exists(m_staging->path("snap/pong.png")); });
        download("pong");
        QVERIFY(wasThere);
    }

    void theEndComesInItsOrder()
    {
        serve("/pong.png", ScriptedServer::answer(png, picture));
        QStringList events;
        connect(m_processing.get(), &DownloadProcessing::SnapChange, m_processing.get(),
                [&] { events << QStringLiteral("SnapChange"); });
        connect(m_panel->infomationTextView, &QPlainTextEdit::textChanged, m_processing.get(),
                [&] { events << m_panel->infomationTextView->toPlainText(); });
        m_desktop->heard = [&](const QString& sound) { events << sound; };
        download("pong");
        events.removeAll(QString());
        QCOMPARE(events.mid(events.size() - 3),
                 (QStringList{"SnapChange", "Snap Download:  100 byte  Finish.\n", "Pop"}));
    }

    void aServerMayBeSilentForTenSeconds()
    {
        QCOMPARE(DownloadLimits().silence, std::chrono::milliseconds(10'000));
    }

    void theIndicatorIsBusyUntilTheErrorIsDismissed()
    {
        m_staging->defaults.setText(keys::snapdownloadPath, QStringLiteral("http://127.0.0.1:9/{$gamename}"));
        m_sites->snapdownsiteAction();
        bool wasBusy = false;
        m_desktop->meanwhile = [&] { wasBusy = m_panel->progressInd2->maximum() == 0; };
        m_desktop->answerAlert(QStringLiteral("download_Miss"), 0);
        download("pong");
        QVERIFY(wasBusy);
        QCOMPARE(m_panel->progressInd2->maximum(), 100);
        m_desktop->takeTranscript();
    }

    void withoutALengthTheProgressStaysAsItIs()
    {
        serve("/pong.png", "HTTP/1.1 200 OK\r\nContent-Type: image/png\r\n\r\n" + picture);
        download("pong");
        QCOMPARE(steps().sliced(1),
                 (QStringList{"Snap Download:  ??? byte\n", "Snap Download:   -1 byte  Finish.\n"}));
        QCOMPARE(content("snap/pong.png"), picture);
    }

    void whatIsNoImageIsCancelledWithABeep()
    {
        serve("/pong.png", ScriptedServer::answer("404 Not Found\r\nContent-Type: text/html", "<p>nothing"));
        download("pong");
        QCOMPARE(steps().constLast(), QStringLiteral("Snap Download:  Cancel, not an image.\n"));
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"beep"});
        QVERIFY(m_changes.isEmpty());
        QVERIFY(!QFile::exists(m_staging->path("snap/pong.png")));
    }

    void anExistingFileIsAskedAbout_data()
    {
        QTest::addColumn<int>("button");
        QTest::addColumn<QString>("last");
        QTest::addColumn<bool>("replaced");
        QTest::newRow("overwrite") << 0 << "Snap Download:  100 byte  Finish.\n" << true;
        QTest::newRow("cancel") << 1 << "Snap Download:  Cancel.\n" << false;
    }

    void anExistingFileIsAskedAbout()
    {
        QFETCH(int, button);
        QFETCH(QString, last);
        QFETCH(bool, replaced);
        write("snap/pong.png", "old");
        serve("/pong.png", ScriptedServer::answer(png, picture));
        m_desktop->answerAlert(QStringLiteral("download_Message"), button);
        download("pong");
        QCOMPARE(steps().constLast(), last);
        QCOMPARE(content("snap/pong.png"), replaced ? picture : QByteArray("old"));
        QCOMPARE(m_changes.size(), replaced ? 1 : 0);
        const Alert& alert = m_desktop->alerts.at(0);
        QCOMPARE(alert.style, Alert::Style::Warning);
        QCOMPARE(alert.buttons, (QStringList{"overwrite", "cancel"}));
        QCOMPARE(alert.informative, QStringLiteral("download_info"));
        QCOMPARE(m_desktop->takeTranscript().constFirst(), QStringLiteral("beep"));
    }

    void aServerThatDoesNotAnswerIsAnError()
    {
        m_server->answers["/pong.png"] = {"", ScriptedServer::Then::Wait};
        m_desktop->answerAlert(QStringLiteral("download_Miss"), 0);
        download("pong");
        QCOMPARE(steps().constLast(), QStringLiteral("Snap Download:  Error.\n"));
        QCOMPARE(m_desktop->alerts.at(0).buttons, QStringList{"OK"});
        QCOMPARE(m_desktop->takeTranscript(),
                 (QStringList{"beep", "alert download_Miss", "log didFailWithError"}));
    }

    void aTemplateThatIsEmptyIsAnError()
    {
        m_staging->defaults.setText(keys::snapdownloadPath, QString());
        m_desktop->answerAlert(QStringLiteral("download_Miss"), 0);
        download("pong");
        QCOMPARE(steps(), (QStringList{"Snap Download: Request...\n.png\n\n", "Snap Download:  Error.\n"}));
        m_desktop->takeTranscript();
    }

    void theSecondSiteHasNoFlyers()
    {
        m_staging->defaults.setText(keys::SnapsiteHost2, QStringLiteral("two.test"));
        m_staging->defaults.setIndex(keys::Snapdownsite, 1);
        m_folder->setKind(2);
        m_desktop->answerAlert(QStringLiteral("download_Miss"), 0);
        download("pong");
        QCOMPARE(steps(), (QStringList{"Snap Download: Request...\n.png\n\n", "Snap Download:  Error.\n"}));
        m_desktop->takeTranscript();
    }

    void theNameIsPutInWhereverItStands()
    {
        m_staging->defaults.setText(keys::snapdownloadPath, address("/{$gamename}/{$gamename}"));
        serve("/pong/pong.png", ScriptedServer::answer(png, picture));
        download("pong");
        QCOMPARE(content("snap/pong.png"), picture);
        m_desktop->takeTranscript();
    }

    void theKindThatIsShownIsFetched()
    {
        m_staging->defaults.setText(keys::flyersdownloadPath, address("/flyer-{$gamename}"));
        m_folder->setKind(2);
        serve("/flyer-pong.png", ScriptedServer::answer(png, picture));
        download("pong");
        QCOMPARE(content("flyers/flyer-pong.png"), picture);
        m_desktop->takeTranscript();
    }

    void whatCannotBeFetchedBeeps_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<bool>("hasFolder");
        QTest::newRow("no name") << "" << true;
        QTest::newRow("no folder") << "pong" << false;
        QTest::newRow("a name that leads up") << "../pong" << true;
        QTest::newRow("a path") << "a/pong" << true;
    }

    void whatCannotBeFetchedBeeps()
    {
        QFETCH(QString, name);
        QFETCH(bool, hasFolder);
        if (!hasFolder)
            m_staging->defaults.setText(keys::SnapPath, QString());
        m_processing->snapdownload_url(name);
        QVERIFY(!m_processing->downloadstate());
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"beep"});
        QVERIFY(m_server->requests.isEmpty() && m_texts.isEmpty());
    }

    void aSecondRequestOnlyBeeps()
    {
        m_server->answers["/pong.png"] = {"", ScriptedServer::Then::Wait};
        m_processing->snapdownload_url(QStringLiteral("pong"));
        QVERIFY(m_processing->downloadstate());
        QCOMPARE(m_panel->progressInd2->maximum(), 0);
        m_processing->snapdownload_url(QStringLiteral("puckman"));
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"beep"});
        m_processing->cancel();
    }

    void whileTheErrorStandsNothingElseBegins()
    {
        m_server->answers["/pong.png"] = {"", ScriptedServer::Then::Wait};
        m_desktop->answerAlert(QStringLiteral("download_Miss"), 0);
        bool wasUnderWay = false;
        m_desktop->meanwhile = [&] {
            wasUnderWay = m_processing->downloadstate();
            m_processing->snapdownload_url(QStringLiteral("puckman"));
        };
        download("pong");
        QVERIFY(wasUnderWay);
        QCOMPARE(m_desktop->takeTranscript(),
                 (QStringList{"beep", "beep", "alert download_Miss", "log didFailWithError"}));
        QCOMPARE(m_server->requests.size(), 1);
    }

    void itCanBeStopped()
    {
        m_server->answers["/pong.png"]
            = {"HTTP/1.1 200 OK\r\nContent-Type: image/png\r\nContent-Length: 1000\r\n\r\n" + picture,
               ScriptedServer::Then::Wait};
        m_processing->snapdownload_url(QStringLiteral("pong"));
        QTRY_VERIFY(m_texts.size() > 2);
        QCOMPARE(m_panel->progressInd2->value(), 10);
        QVERIFY(m_panel->cancelButton->isEnabled());
        m_processing->cancel();
        QCOMPARE(m_texts.constLast(), QStringLiteral("Snap Download:  Cancel.\n"));
        QVERIFY(!m_processing->downloadstate() && !m_panel->cancelButton->isEnabled());
        QVERIFY(!QFile::exists(m_staging->path("snap/pong.png")));
    }

    void thePanelBeginsAnewWithEveryDownload()
    {
        m_panel->setPercent(70);
        m_server->answers["/pong.png"] = {"", ScriptedServer::Then::Wait};
        QSignalSpy began(m_processing.get(), &DownloadProcessing::began);
        m_processing->snapdownload_url(QStringLiteral("pong"));
        QCOMPARE(began.size(), 1);
        QVERIFY(m_panel->cancelButton->isEnabled());
        QCOMPARE(m_panel->folderLabel->text(), m_staging->path("snap"));
        m_panel->setIndeterminate(false);
        QVERIFY(m_panel->progressInd2->value() <= 0);
        m_processing->cancel();
        QCOMPARE(m_panel->progressInd2->maximum(), 100);
    }

    void whatHasComeIsAllOfIt()
    {
        serve("/pong.png", ScriptedServer::answer(png, picture));
        download("pong");
        QCOMPARE(m_panel->progressInd2->value(), 100);
        QVERIFY(!m_panel->cancelButton->isEnabled());
        m_desktop->takeTranscript();
    }

    void anAnswerMakesTheIndicatorATrueOne()
    {
        m_server->answers["/pong.png"]
            = {"HTTP/1.1 200 OK\r\nContent-Type: image/png\r\nContent-Length: 1000\r\n\r\n",
               ScriptedServer::Then::Wait};
        m_processing->snapdownload_url(QStringLiteral("pong"));
        QTRY_COMPARE(m_texts.constLast(), QStringLiteral("Snap Download:  1000 byte\n"));
        QCOMPARE(m_panel->progressInd2->maximum(), 100);
        m_processing->cancel();
    }

    void aSiteWithoutAHostIsNamed()
    {
        const test::InstalledTexts texts("en");
        m_staging->defaults.setIndex(keys::Snapdownsite, 1);
        QSignalSpy said(m_processing.get(), &DownloadProcessing::statusMessage);
        m_processing->snapdownload_url(QStringLiteral("pong"));
        QCOMPARE(said.size(), 1);
        QCOMPARE(said.constFirst().constFirst().toString(),
                 QString::fromUtf8("Picture site 2 has no host yet: Preferences › Support › Pictures."));
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"beep"});
        QVERIFY(m_texts.isEmpty() && !m_processing->downloadstate());
    }

    void theErrorSaysWhy()
    {
        const test::InstalledTexts texts("en");
        m_server->answers["/pong.png"] = {"", ScriptedServer::Then::Wait};
        bool couldStop = true;
        m_desktop->meanwhile = [&] { couldStop = m_panel->cancelButton->isEnabled(); };
        m_desktop->answerAlert(QStringLiteral("The picture could not be downloaded."), 0);
        download("pong");
        QCOMPARE(m_desktop->alerts.at(0).informative, QString::fromUtf8("“127.0.0.1” does not answer."));
        QVERIFY(!couldStop);
        m_desktop->takeTranscript();
    }

private:
    // A template: its braces stay as they are.
    QString address(const char* path) const { return m_server->url({}).toString() + QLatin1String(path); }

    void serve(const QByteArray& path, const QByteArray& answer) { m_server->answers[path] = {answer}; }

    void download(const QString& name)
    {
        m_processing->snapdownload_url(name);
        QTRY_VERIFY(!m_processing->downloadstate());
    }

    // What the panel said, each text once.
    QStringList steps() const
    {
        QStringList steps;
        for (const QString& text : m_texts) {
            if (!text.isEmpty() && (steps.isEmpty() || steps.constLast() != text))
                steps << text;
        }
        return steps;
    }

    QByteArray content(const QString& name) const
    {
        QFile file(m_staging->path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    void write(const QString& name, const QByteArray& bytes) const
    {
        QFile file(m_staging->path(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("no file");
    }

    std::unique_ptr<PictureStaging> m_staging;
    std::unique_ptr<BusyDesktop> m_desktop;
    std::unique_ptr<ScriptedServer> m_server;
    std::unique_ptr<SnapFolder> m_folder;
    std::unique_ptr<SnapSites> m_sites;
    DownloadPanel* m_panel;
    std::unique_ptr<DownloadProcessing> m_processing;
    QStringList m_texts;
    QStringList m_changes;
};

TESSERA_TEST(DownloadProcessingTest);

#include "downloadprocessingtest.moc"
