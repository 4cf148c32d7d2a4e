#include "verbs/stagedverbs.h"

#include <QFile>
#include <QSettings>

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

    void withoutAnEmulatorTheFileStaysAsItIs_data()
    {
        QTest::addColumn<QString>("emulator");
        QTest::newRow("nothing there") << "missing";
        QTest::newRow("not executable") << "kept";
    }

    void withoutAnEmulatorTheFileStaysAsItIs()
    {
        QFETCH(QString, emulator);
        write(QStringLiteral("kept"), "kept");
        QSettings(settingsPath(), QSettings::IniFormat).setValue("ExecutionPath", path(emulator));
        const Outcome outcome
            = tessera({QStringLiteral("export"), QStringLiteral("0"), QStringLiteral("-o"), path("kept")});
        QCOMPARE(outcome.status, 1);
        QVERIFY2(outcome.err.contains(path(emulator).toUtf8()), outcome.err);
        QCOMPARE(read(QStringLiteral("kept")), QByteArray("kept"));
        QVERIFY(tessera({"export", "0", "-o", path("new")}).status == 1 && !QFile::exists(path("new")));
    }

    void muchIsWrittenWhole()
    {
        useStandIn();
        m_environment.insert(QStringLiteral("FAKE_COMMAND"), QStringLiteral("flood5"));
        QCOMPARE(tessera({"export", "0", "-o", path("out")}).status, 0);
        QCOMPARE(read(QStringLiteral("out")).size(), 5'000'000);
    }
};

TESSERA_TEST(ExportVerbTest);
#include "exportverbtest.moc"
