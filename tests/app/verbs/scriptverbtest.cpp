#include "core/settingskeys.h"
#include "platform/userdefaults.h"
#include "verbs/stagedverbs.h"

#include <QFileInfo>

using namespace tessera;

class ScriptVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
    void scriptsLeaveOutWhatTheEmulatorDoesNotKnowAndKeepTheQuotes()
    {
        write(QStringLiteral("usage.txt"),
              "-video               video output method\n-effect              name of the effect\n"
              "-rompath             path to ROM sets\n");
        m_environment.insert(QStringLiteral("FAKE_USAGE"), path(QStringLiteral("usage.txt")));
        useStandIn();
        UserDefaults settings(settingsPath());
        settings.setValue(keys::Effect.name, true);
        QVERIFY(settings.synchronize());
        const QString folder = QFileInfo(QStringLiteral(TESSERA_FAKEEMULATOR)).path();
        const QString name = QFileInfo(QStringLiteral(TESSERA_FAKEEMULATOR)).fileName();
        const auto made = [&](const QString& more) {
            const QString line = QStringLiteral("script pong -o %1 ").arg(path(QStringLiteral("out"))) + more;
            const Outcome outcome = tessera(line.split(QLatin1Char(' ')));
            return outcome.status == 0 && outcome.out == "Saved a Script file.\n"
                ? QString::fromUtf8(read(QStringLiteral("out")))
                : QString::fromUtf8(outcome.err);
        };
        const QString start = QStringLiteral("cd %1\n./%2 pong").arg(folder, name);
        QCOMPARE(made(QStringLiteral("--format tool")),
                 start + QStringLiteral(" -video opengl -effect \"none\""));
        QVERIFY(QFileInfo(path(QStringLiteral("out"))).isExecutable());
        QCOMPARE(made(QStringLiteral("--format tool --no-options")), start);
        QVERIFY(made(QStringLiteral("--format scpt"))
                    .endsWith(QStringLiteral(" -video opengl -effect \\\"none\\\"\"")));
        QVERIFY(made(QStringLiteral("--format sh --emulator 1")).contains(QStringLiteral("No emulator")));
    }
};

TESSERA_TEST(ScriptVerbTest);
#include "scriptverbtest.moc"
