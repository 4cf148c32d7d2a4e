#include "verbs/stagedverbs.h"

using namespace tessera;

class ExportVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
    void exportWritesWhatTheEmulatorPrints()
    {
        useStandIn();
        m_environment.insert(QStringLiteral("FAKE_COMMAND"), QStringLiteral("print"));
        const QStringList line{QStringLiteral("export"), QStringLiteral("15"), QStringLiteral("-o"),
                               path(QStringLiteral("out"))};
        Outcome outcome = tessera(line);
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, QByteArray("File save was completed.\n"));
        QCOMPARE(read(QStringLiteral("out")), QByteArray("[-verifyroms]\n"));

        m_environment.insert(QStringLiteral("FAKE_COMMAND"), QStringLiteral("both"));
        QCOMPARE(tessera(line).status, 0);
        QCOMPARE(read(QStringLiteral("out")), QByteArray("out\nerr\n"));

        m_environment.insert(QStringLiteral("FAKE_COMMAND"), QStringLiteral("exit3"));
        outcome = tessera(line);
        QCOMPARE(outcome.status, 1);
        QVERIFY(outcome.err.contains('3') && outcome.err.count('\n') == 1);
        QCOMPARE(read(QStringLiteral("out")), QByteArray("leaving\n"));

        outcome = tessera({QStringLiteral("export"), QStringLiteral("0"), QStringLiteral("-o"),
                           path(QStringLiteral("no such folder/out"))});
        QCOMPARE(outcome.status, 1);
        QVERIFY(outcome.out.isEmpty() && outcome.err.contains("no such folder"));
    }
};

TESSERA_TEST(ExportVerbTest);
#include "exportverbtest.moc"
