#include "verbs/stagedverbs.h"

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
};

TESSERA_TEST(CommandVerbTest);
#include "commandverbtest.moc"
