#include "favourites/playedgames.h"

#include "favouritetexts.h"
#include "support/testmain.h"

#include <QSignalSpy>
#include <QTemporaryDir>

using namespace tessera;
using namespace tessera::test;

class PlayedGamesTest : public QObject
{
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_path;
    const QDateTime m_monday{QDate(2026, 1, 5), QTime(20, 30), Qt::UTC};

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_path = m_folder->filePath(QStringLiteral("played.xml"));
    }

    void startsAreCounted()
    {
        PlayedGames played(m_path);
        QSignalSpy changed(&played, &PlayedGames::changed);
        QVERIFY(!played.played(QStringLiteral("pong")));
        played.note(QStringLiteral("pong"), m_monday);
        played.note(QStringLiteral("pong"), m_monday.addDays(1));
        QCOMPARE(changed.size(), 2);
        QCOMPARE(played.played(QStringLiteral("pong"))->times, quint64(2));
        QCOMPARE(played.played(QStringLiteral("pong"))->last, m_monday.addDays(1));
        QVERIFY(!played.played(QStringLiteral("Pong")));
    }

    void theFileHoldsThem()
    {
        PlayedGames played(m_path);
        QVERIFY(played.open());
        played.note(QStringLiteral("pong"),
                    QDateTime(QDate(2026, 1, 5), QTime(20, 30), Qt::OffsetFromUTC, 9 * 3600));
        played.note(QStringLiteral("galaga"), m_monday);
        QVERIFY(played.save());
        QVERIFY(bytesOf(m_path).contains("<string>2026-01-05T11:30:00Z</string>"));
        PlayedGames again(m_path);
        QVERIFY(again.open());
        QCOMPARE(again.played(QStringLiteral("pong"))->times, quint64(1));
        QCOMPARE(again.played(QStringLiteral("galaga"))->last, m_monday);
        // Only our own file was there.
        QVERIFY(again.save());
        QCOMPARE(QDir(m_folder->path()).entryList(QDir::Files).size(), 1);
    }

    void theLastOnesComeFirst()
    {
        PlayedGames played(m_path);
        played.note(QStringLiteral("old"), m_monday.addDays(-40));
        played.note(QStringLiteral("b"), m_monday);
        played.note(QStringLiteral("a"), m_monday);
        played.note(QStringLiteral("last"), m_monday.addSecs(1));
        QCOMPARE(played.recent(m_monday.addDays(-30)),
                 (QStringList{QStringLiteral("last"), QStringLiteral("a"), QStringLiteral("b")}));
    }

    void clearingForgetsEverything()
    {
        PlayedGames played(m_path);
        played.note(QStringLiteral("pong"), m_monday);
        QVERIFY(played.save());
        played.clear();
        QVERIFY(played.isEmpty());
        QVERIFY(played.save());
        PlayedGames again(m_path);
        QVERIFY(again.open());
        QVERIFY(again.isEmpty());
        QVERIFY(!bytesOf(m_path).contains("pong"));
    }

    void foreignEntriesAreNoGames()
    {
        QVERIFY(writeBytes(m_path,
                           listFile("<string>x</string><dict/>"
                                    "<dict><key>name</key><string>none</string></dict>"
                                    "<dict><key>name</key><string>minus</string>"
                                    "<key>times</key><integer>-1</integer></dict>"
                                    "<dict><key>name</key><string>number</string>"
                                    "<key>times</key><integer>3</integer>"
                                    "<key>last</key><date>2026-01-05T20:30:00Z</date></dict>"
                                    "<dict><key>name</key><string>undated</string>"
                                    "<key>times</key><string>2</string>"
                                    "<key>last</key><string>yesterday</string></dict>")));
        PlayedGames played(m_path);
        QVERIFY(played.open());
        QVERIFY(!played.played(QStringLiteral("none")));
        QVERIFY(!played.played(QStringLiteral("minus")));
        QCOMPARE(played.played(QStringLiteral("number"))->times, quint64(3));
        QCOMPARE(played.played(QStringLiteral("number"))->last, m_monday);
        QCOMPARE(played.played(QStringLiteral("undated"))->times, quint64(2));
        QVERIFY(!played.played(QStringLiteral("undated"))->last.isValid());
        QVERIFY(played.save());
        QVERIFY(PlayedGames(m_path).open());
    }

    void aBrokenFileIsKeptUnderADatedName()
    {
        QVERIFY(writeBytes(m_path, "broken"));
        PlayedGames played(m_path);
        const auto opened = played.open();
        QVERIFY(!opened);
        QCOMPARE(opened.error().key, "failure_plist_malformed");
        played.note(QStringLiteral("pong"), m_monday);
        QVERIFY(played.save());
        QStringList files = QDir(m_folder->path()).entryList(QDir::Files);
        QVERIFY(files.removeOne(QStringLiteral("played.xml")));
        QCOMPARE(files.size(), 1);
        QCOMPARE(bytesOf(m_folder->filePath(files.constFirst())), QByteArray("broken"));
    }
};

TESSERA_TEST(PlayedGamesTest);
#include "playedgamestest.moc"
