#include "core/settingskeys.h"
#include "platform/recentdocuments.h"
#include "platform/userdefaults.h"
#include "verbs/stagedverbs.h"

using namespace tessera;

class LaunchVerbTest : public test::StagedVerbs
{
    Q_OBJECT

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

    void launchNotesAnArchiveAmongTheRecentFiles()
    {
        useStandIn();
        write(QStringLiteral("print.zip"), "");
        tessera({QStringLiteral("launch"), path(QStringLiteral("print.zip"))});
        tessera({QStringLiteral("launch"), QStringLiteral("print")});
        UserDefaults settings(settingsPath());
        QCOMPARE(RecentDocuments(settings).paths(), QStringList{path(QStringLiteral("print.zip"))});
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
