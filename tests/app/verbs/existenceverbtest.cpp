#include "verbs/stagedverbs.h"

#include <QDir>
#include <QFile>

using namespace tessera;

class ExistenceVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
    void existenceWritesTheReportAndSaysTheCounts()
    {
        write(QStringLiteral("listfull.txt"), "Name: Description:\npong \"Pong\"\ngone \"Gone\"\n");
        QVERIFY(QDir().mkpath(path(QStringLiteral("roms/pong"))));
        const QStringList arguments{QStringLiteral("existence"), path(QStringLiteral("listfull.txt")),
                                    path(QStringLiteral("roms")), QStringLiteral("-o"),
                                    path(QStringLiteral("report.txt"))};
        const Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.err, QByteArray());
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, QByteArray("3 ROMs ( Found: 1 / Not found: 2 )\n"));
        QCOMPARE(read(QStringLiteral("report.txt")),
                 QByteArray("MAME ROM Existence Report\nAll: 3 ROMs ( Found: 1 / Not found: 2 )\n\n"
                            "pong\t\tFound\nName:\t\tNot found\ngone\t\tNot found\n"));

        write(QStringLiteral("listfull.txt"), "pong \"Pong\"\n");
        expectRefusal(arguments, "header");
        QVERIFY(read(QStringLiteral("report.txt")).contains("gone"));
    }

    void existenceTestsTheListBeforeTheFolder()
    {
        const QString report = path(QStringLiteral("report.txt"));
        write(QStringLiteral("listfull.txt"), "Name: x\n");
        expectRefusal({QStringLiteral("existence"), path(QStringLiteral("none")),
                       path(QStringLiteral("none")), QStringLiteral("-o"), report},
                      "listfull.txt file is not found.");
        expectRefusal({QStringLiteral("existence"), path(QStringLiteral("listfull.txt")),
                       path(QStringLiteral("none")), QStringLiteral("-o"), report},
                      "ROMs folder is not found.");
        expectRefusal({QStringLiteral("existence"), path(QStringLiteral("listfull.txt")), m_folder->path(),
                       QStringLiteral("-o"), path(QStringLiteral("none/report.txt"))},
                      "none/report.txt");
        QVERIFY(!QFile::exists(report));
    }
};

TESSERA_TEST(ExistenceVerbTest);
#include "existenceverbtest.moc"
