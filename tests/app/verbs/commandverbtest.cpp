#include "verbs/stagedverbs.h"

#include "launch/emulatorfinder.h"

#include <QFileInfo>

using namespace tessera;

class CommandVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
    void commandGivesTheEmulatorsOutputAndStatus()
    {
        useStandIn();
        Outcome outcome = tessera({QStringLiteral("command"), QStringLiteral("7"), QStringLiteral("exit3")});
        QCOMPARE(outcome.status, 3);
        QCOMPARE(outcome.out, QByteArray("leaving\n"));
        m_environment.insert(QStringLiteral("FAKE_COMMAND"), QStringLiteral("print"));
        const auto printed = [&](const QString& line) { return tessera(line.split(QLatin1Char(' '))).out; };
        const QByteArray emulator = TESSERA_FAKEEMULATOR;
        QCOMPARE(printed(QStringLiteral("command 0")), QByteArray("[-help]\n"));
        QCOMPARE(printed(QStringLiteral("command 17 galaga")), QByteArray("[galaga]\n[-verifyroms]\n"));
        QCOMPARE(printed(QStringLiteral("command 20 galaga")),
                 '[' + QFileInfo(QString::fromLatin1(emulator)).path().toUtf8()
                     + "/roms/galaga.zip]\n[-romident]\n");
        QCOMPARE(printed(QStringLiteral("command 21 galaga")), '[' + emulator + "]\n[-listdevices]\n");
        QCOMPARE(printed(QStringLiteral("command 24 galaga")), QByteArray());
    }

    void aGameThatIsMissingIsSaidBeforeAnEmulatorIsLookedFor()
    {
        hideEmulators();
        Outcome outcome = tessera({QStringLiteral("command"), QStringLiteral("0")});
        if (outcome.status != 1 && !findEmulator().isEmpty())
            QSKIP("An emulator is installed, and nothing may be mounted over it.");
        QVERIFY2(outcome.err.startsWith("tessera: "), outcome.err.constData());
        for (const char* position : {"7", "20", "21"}) {
            outcome = tessera({QStringLiteral("command"), QString::fromLatin1(position)});
            QCOMPARE(outcome.status, 2);
            QVERIFY2(outcome.err.contains("This command wants a GAME."), outcome.err.constData());
        }
    }
};

TESSERA_TEST(CommandVerbTest);
#include "commandverbtest.moc"
