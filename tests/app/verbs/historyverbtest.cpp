#include "core/settingskeys.h"
#include "platform/userdefaults.h"
#include "verbs/stagedverbs.h"

using namespace tessera;

class HistoryVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
    void historyPrintsWhatTheWindowShows()
    {
        write("history.dat", "$info=pacman,puckman,\r\n$bio\r\n\r\nA maze.\r\n$end\r\n");
        write("mameinfo.dat", "$info=puckman\r\n$mame\r\n\x83\x70\r\n$end\r\n");
        const QStringList files{"--history", path("history.dat"), "--mameinfo", path("mameinfo.dat")};
        const Outcome first = tessera(QStringList{"history", "pacman"} + files);
        QCOMPARE(first.status, 0);
        QCOMPARE(first.out, QByteArray("MAME History\r\n\r\nA maze.\r\nNo MAME Info\r\n"));
        QCOMPARE(first.err, QByteArray());
        const Outcome second = tessera(QStringList{"history", "puckman"} + files);
        QCOMPARE(second.status, 0);
        QCOMPARE(second.out, QByteArray("No MAME history.\r\n\r\nMAME Info\r\n\r\n\xE3\x83\x91\r\n"));
        QVERIFY2(second.err.contains("pacman") && second.err.count('\n') == 1, second.err);
        QCOMPARE(tessera({"history", ""}).out, QByteArray("No result.\n"));
    }

    void historyTakesTheFilesOfTheSettings()
    {
        const QByteArray nothing("MAME History\r\n\r\n\r\nMAME Info\r\n\r\n\r\n");
        QCOMPARE(tessera({"history", "pong"}).out, nothing);
        write("history.xml",
              "<history><entry><systems><system name=\"pong\"/></systems>"
              "<text>Two bats.</text></entry></history>");
        UserDefaults settings(settingsPath());
        settings.setValue(keys::HistoryPath.name, path("history.xml"));
        QVERIFY(settings.synchronize());
        QCOMPARE(tessera({"history", "pong"}).out,
                 QByteArray("MAME History\r\n\r\nTwo bats.\n\r\nMAME Info\r\n\r\n\r\n"));
    }

    void historySaysWhichFileIsMissing_data()
    {
        QTest::addColumn<QString>("option");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QByteArray>("sentence");
        QTest::newRow("history") << "--history" << "none" << QByteArray("history.dat  is not found. (");
        QTest::newRow("info") << "--mameinfo" << "none" << QByteArray("mameinfo.dat  is not found. (");
        QTest::newRow("a folder") << "--history" << "" << QByteArray();
    }

    // What the other file tells is printed all the same, as the window shows it.
    void historySaysWhichFileIsMissing()
    {
        QFETCH(QString, option);
        QFETCH(QString, file);
        QFETCH(QByteArray, sentence);
        const QString asked = path(file);
        if (sentence.isEmpty())
            sentence = asked.toUtf8();
        const Outcome outcome = tessera({"history", "pong", option, asked});
        QCOMPARE(outcome.status, 1);
        QCOMPARE(outcome.out, QByteArray("MAME History\r\n\r\n\r\nMAME Info\r\n\r\n\r\n"));
        QVERIFY2(outcome.err.startsWith("tessera: ") && outcome.err.contains(sentence), outcome.err);
        QCOMPARE(outcome.err.count('\n'), 1);
    }
};

TESSERA_TEST(HistoryVerbTest);
#include "historyverbtest.moc"
