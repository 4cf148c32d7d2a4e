#include "core/settingskeys.h"
#include "platform/recentdocuments.h"
#include "platform/userdefaults.h"
#include "verbs/stagedverbs.h"

#include <QDir>
#include <QFileInfo>

using namespace tessera;

class LaunchVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private:
    void writeFavourites(const QByteArray& text) const
    {
        QVERIFY(QDir().mkpath(path(QStringLiteral("XDG_DATA_HOME/Plover.Tessera"))));
        write(QStringLiteral("XDG_DATA_HOME/Plover.Tessera/jp.Plover.Tessera_Favorites.xml"), text);
    }
    void set(QLatin1StringView name, const QVariant& value) const
    {
        UserDefaults settings(settingsPath());
        settings.setValue(name, value);
        QVERIFY(settings.synchronize());
    }

private Q_SLOTS:
    void launchGivesTheEmulatorsOutputAndStatus()
    {
        useStandIn();
        Outcome outcome = tessera({QStringLiteral("launch"), QStringLiteral("exit3")});
        QCOMPARE(outcome.status, 3);
        QCOMPARE(outcome.out, QByteArray("leaving\n"));
        outcome = tessera({QStringLiteral("launch"), QStringLiteral("both")});
        QCOMPARE(outcome.out, QByteArray("out\nerr\n"));
        outcome = tessera({QStringLiteral("launch"), QStringLiteral("print")});
        QVERIFY(outcome.out.startsWith("[print]\n[-video]\n[opengl]\n"));
    }

    void launchNotesTheArchiveAmongTheRecentFiles()
    {
        useStandIn();
        write(QStringLiteral("print.zip"), "");
        tessera({QStringLiteral("launch"), path(QStringLiteral("print.zip"))});
        tessera({QStringLiteral("launch"), QStringLiteral("print")});
        set(keys::RomsPath.name, path(QStringLiteral("roms")));
        set(keys::Outputserror.name, true);
        // Used, and missing.
        tessera({QStringLiteral("launch"), QStringLiteral("both")});
        QVERIFY(QDir().mkdir(path(QStringLiteral("roms"))));
        tessera({QStringLiteral("launch"), QStringLiteral("exit0")});
        const QString beside = QFileInfo(QStringLiteral(TESSERA_FAKEEMULATOR)).path();
        UserDefaults settings(settingsPath());
        DefaultsController controller(settings);
        QCOMPARE(
            RecentDocuments(controller).paths(),
            QStringList({path(QStringLiteral("roms/exit0.zip")), beside + QStringLiteral("/roms/both.zip"),
                         beside + QStringLiteral("/roms/print.zip"), path(QStringLiteral("print.zip"))}));
    }

    void launchAddsTheOptionsOfTheFirstFavouriteOfThatName()
    {
        useStandIn();
        m_environment.insert(QStringLiteral("FAKE_COMMAND"), QStringLiteral("print"));
        writeFavourites(
            "<plist version=\"1.0\"><array><string>no favourite</string>"
            "<dict><key>name</key><string>qix</string><key>option</key><string>-other</string></dict>"
            "<dict><key>name</key><string>pong</string><key>option</key><string>-cheat  -log</string></dict>"
            "<dict><key>name</key><string>pong</string><key>option</key><string>-second</string></dict>"
            "<dict><key>name</key><string>1943</string></dict>"
            "</array></plist>");
        const auto sent = [this](const QString& game) {
            return tessera({QStringLiteral("launch"), game}).out.split('\n');
        };
        QCOMPARE(sent(QStringLiteral("pong")).mid(sent(QStringLiteral("1943")).size() - 1),
                 QByteArrayList({"[-cheat]", "[]", "[-log]", ""}));
        // Whole paths are nobody's names.
        QCOMPARE(sent(path(QStringLiteral("pong.zip"))).size(), sent(QStringLiteral("1943")).size());
    }

    void launchGoesOnWithoutFavouritesThatCannotBeRead()
    {
        useStandIn();
        writeFavourites("no property list");
        const Outcome outcome = tessera({QStringLiteral("launch"), QStringLiteral("print")});
        QCOMPARE(outcome.status, 0);
        QVERIFY(outcome.out.startsWith("[print]\n"));
        QVERIFY(outcome.err.contains("Favorites.xml"));
    }

    void theRecordFileOfAnArchiveHasTheNameOfItsSet_data()
    {
        QTest::addColumn<QString>("game");
        QTest::addColumn<int>("naming");
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("a set") << "qix" << 0 << QByteArray("qix.inp");
        QTest::newRow("an archive") << "dir/qix.zip" << 0 << QByteArray("qix.inp");
        QTest::newRow("an archive by title") << "dir/qix.zip" << 1 << QByteArray("\"Title of qix.inp\"");
        QTest::newRow("an unknown archive") << "dir/un.known.zip" << 0 << QByteArray("un.known.inp");
    }

    void theRecordFileOfAnArchiveHasTheNameOfItsSet()
    {
        QFETCH(QString, game);
        QFETCH(int, naming);
        QFETCH(QByteArray, file);
        useStandIn();
        writeCatalogue();
        m_environment.insert(QStringLiteral("FAKE_COMMAND"), QStringLiteral("print"));
        set(keys::Replaymove.name, true);
        set(keys::Recordfilepop.name, naming);
        const QString reference = game.contains(QLatin1Char('/')) ? path(game) : game;
        for (const char* verb : {"launch", "arguments"}) {
            QByteArrayList words = tessera({QString::fromLatin1(verb), reference}).out.split('\n');
            const bool bracketed = words.constFirst().startsWith('[');
            const auto at = words.indexOf(bracketed ? "[-record]" : "-record");
            QVERIFY(at >= 0);
            QCOMPARE(words.value(at + 1), bracketed ? '[' + file + ']' : file);
        }
    }

    void launchSaysWhatCouldNotBeStarted()
    {
        UserDefaults settings(settingsPath());
        settings.setValue(keys::ExecutionPath.name, QStringLiteral("/nowhere/mame"));
        QVERIFY(settings.synchronize());
        const Outcome outcome = tessera({QStringLiteral("launch"), QStringLiteral("pong")});
        QCOMPARE(outcome.status, 1);
        QVERIFY(outcome.err.contains("/nowhere/mame"));
    }
};

TESSERA_TEST(LaunchVerbTest);
#include "launchverbtest.moc"
