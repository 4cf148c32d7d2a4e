#include "verbs/stagedverbs.h"

#include <QDir>
#include <QFileInfo>
#include <QProcess>

using namespace tessera;

class SeparateVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
    void separateCopiesAndSaysTheCounts()
    {
        write(QStringLiteral("listfull.txt"), "Name: Description:\npong \"Pong\"\n");
        QVERIFY(QDir().mkpath(path(QStringLiteral("roms/old")))
                && QDir().mkpath(path(QStringLiteral("aside"))));
        write(QStringLiteral("roms/PONG.ZIP"), "pong");
        write(QStringLiteral("roms/gone.zip"), "gone");
        write(QStringLiteral("roms/.hidden"), "hidden");
        const QStringList arguments{QStringLiteral("separate"), path(QStringLiteral("roms")),
                                    path(QStringLiteral("listfull.txt")), path(QStringLiteral("aside"))};
        Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.err, QByteArray());
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, QByteArray("3 ROMs ( Support: 1 / Moved: 2 )\n"));
        QCOMPARE(QDir(path(QStringLiteral("aside")))
                     .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
                 QStringList({QStringLiteral("gone.zip"), QStringLiteral("old")}));
        QCOMPARE(read(QStringLiteral("roms/gone.zip")), QByteArray("gone"));

        // A second time nothing is replaced, and that is said.
        write(QStringLiteral("roms/gone.zip"), "newer");
        outcome = tessera(arguments);
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.out, QByteArray("3 ROMs ( Support: 1 / Moved: 2 )\n"));
        QVERIFY2(outcome.err.contains("2") && outcome.err.count('\n') == 1, outcome.err.constData());
        QCOMPARE(read(QStringLiteral("aside/gone.zip")), QByteArray("gone"));
    }

    void separateTestsTheRomFolderFirst()
    {
        write(QStringLiteral("listfull.txt"), "Name: x\n");
        QVERIFY(QDir().mkpath(path(QStringLiteral("roms"))));
        const QString none = path(QStringLiteral("none"));
        const QString roms = path(QStringLiteral("roms"));
        const QString list = path(QStringLiteral("listfull.txt"));
        expectRefusal({QStringLiteral("separate"), none, none, none}, "ROMs folder is not found.");
        expectRefusal({QStringLiteral("separate"), roms, none, none}, "listfull.txt file is not found.");
        expectRefusal({QStringLiteral("separate"), roms, list, none}, "Move folder is not found.");
        expectRefusal({QStringLiteral("separate"), roms, list, roms}, "No Separating file.");
    }

    void anInterruptedSeparationLeavesNoHalves()
    {
        write(QStringLiteral("listfull.txt"), "Name: x\n");
        QVERIFY(QDir().mkpath(path(QStringLiteral("roms"))) && QDir().mkpath(path(QStringLiteral("aside"))));
        for (int i = 0; i < 400; ++i)
            write(QStringLiteral("roms/%1.zip").arg(i), QByteArray(1 << 20, 'x'));
        QProcess process;
        process.setProcessEnvironment(m_environment);
        process.start(QStringLiteral(TESSERA_PROGRAM),
                      {QStringLiteral("separate"), path(QStringLiteral("roms")),
                       path(QStringLiteral("listfull.txt")), path(QStringLiteral("aside"))});
        const QDir aside(path(QStringLiteral("aside")));
        QTRY_VERIFY(!aside.isEmpty());
        process.terminate();
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        QCOMPARE(process.exitCode(), 1);
        QCOMPARE(process.readAllStandardOutput(), QByteArray());
        const QFileInfoList copies
            = aside.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        QVERIFY(!copies.isEmpty() && copies.size() < 400);
        for (const QFileInfo& copy : copies)
            QVERIFY2(copy.size() == 1 << 20, qPrintable(copy.fileName()));
    }
};

TESSERA_TEST(SeparateVerbTest);
#include "separateverbtest.moc"
