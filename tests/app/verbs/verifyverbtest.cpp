#include "verbs/stagedverbs.h"

using namespace tessera;

class VerifyVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
    void verifyWritesTheReport_data()
    {
        QTest::addColumn<QStringList>("keys");
        QTest::addColumn<QByteArray>("report");
        QTest::newRow("bad sets by default")
            << QStringList() << QByteArray("romset a is bad\n\n(is bad: 1)\n\n");
        QTest::newRow("another key alone")
            << QStringList{QStringLiteral("notfound")} << QByteArray("\n(NOT FOUND: 0)\n\n");
        QTest::newRow("several, in the report's order")
            << QStringList{QStringLiteral("isbad"), QStringLiteral("isgood")}
            << QByteArray("romset b is good\n\n(is good: 1)\n\nromset a is bad\n\n(is bad: 1)\n\n");
    }

    void verifyWritesTheReport()
    {
        QFETCH(QStringList, keys);
        QFETCH(QByteArray, report);
        write(QStringLiteral("verifyroms.txt"), "romset a is bad\nromset b is good\n");
        QStringList arguments{QStringLiteral("verify"), path(QStringLiteral("verifyroms.txt")),
                              QStringLiteral("-o"), path(QStringLiteral("report.txt"))};
        for (const QString& key : keys)
            arguments << QStringLiteral("--only") << key;
        const Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.err, QByteArray());
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, QByteArray("Saved a Verifyroms text.\n"));
        QCOMPARE(read(QStringLiteral("report.txt")), report);
    }

    void verifySaysWhatIsMissing()
    {
        write(QStringLiteral("verifyroms.txt"), "romset a is bad\n");
        expectRefusal({QStringLiteral("verify"), path(QStringLiteral("none")), QStringLiteral("-o"),
                       path(QStringLiteral("report.txt"))},
                      "verifyroms.txt file is not found.");
        expectRefusal({QStringLiteral("verify"), path(QStringLiteral("verifyroms.txt")), QStringLiteral("-o"),
                       path(QStringLiteral("none/report.txt"))},
                      "Error writing file at ");
    }
};

TESSERA_TEST(VerifyVerbTest);
#include "verifyverbtest.moc"
