#include "launch/emulatorcommands.h"

#include "support/testmain.h"

using namespace tessera;

class EmulatorCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyCommand_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("arguments");
        QTest::addColumn<bool>("needsGame");
        const auto row = [](int position, const QString& arguments, bool needsGame) {
            QTest::addRow("%d", position) << position << arguments << needsGame;
        };
        row(-1, "", false);
        row(0, "-help", false);
        row(1, "-validate", false);
        row(2, "", false);
        row(3, "-createconfig", false);
        row(4, "-showconfig", false);
        row(5, "-showusage", false);
        row(6, "", false);
        row(7, "S -listxml", true);
        row(8, "S -listfull", true);
        row(9, "", false);
        row(10, "S -listsource", true);
        row(11, "S -listclones", true);
        row(12, "S -listbrothers", true);
        row(13, "S -listcrc", true);
        row(14, "S -listroms", true);
        row(15, "S -listsamples", true);
        row(16, "", false);
        row(17, "S -verifyroms", true);
        row(18, "S -verifysamples", true);
        row(19, "", false);
        row(20, "Z -romident", true);
        row(21, "E -listdevices", true);
        row(22, "E -listslots", true);
        row(23, "E -listmedia", true);
        row(24, "", false);
        row(1000, "", false);
    }

    void everyCommand()
    {
        QFETCH(int, position);
        QFETCH(QString, arguments);
        QFETCH(bool, needsGame);
        const QStringList wanted = arguments.split(' ', Qt::SkipEmptyParts);
        QCOMPARE(commandArguments(position, {"S", "Z", "E"}), std::optional(wanted));
        const auto without = commandArguments(position, {"", "Z", "E"});
        QCOMPARE(without, needsGame ? std::nullopt : std::optional(wanted));
    }

    void everyExport_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QString>("panel");
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("argument");
        const auto row = [](int position, const char* panel, const char* file, const char* argument) {
            QTest::addRow("%d", position) << position << panel << file << argument;
        };
        row(-1, "Save listfull file", "listfull.txt", "");
        row(0, "Save listfull file", "listfull.txt", "-listfull");
        row(1, "Save listxml file", "listxml.xml", "-listxml");
        row(2, "Save listfull file", "listfull.txt", "");
        row(3, "Save listsource file", "listsource.txt", "-listsource");
        row(4, "Save listclones file", "listclones.txt", "-listclones");
        row(5, "Save listbrothers file", "listbrothers.txt", "-listbrothers");
        row(6, "Save listcrc file", "listcrc.txt", "-listcrc");
        row(7, "Save listroms file", "listroms.txt", "-listroms");
        row(8, "Save listsamples file", "listsamples.txt", "-listsamples");
        row(9, "Save listfull file", "listfull.txt", "");
        row(10, "Save verifyroms file", "verifyroms.txt", "-verifyroms");
        row(11, "Save verifysamples file", "verifysamples.txt", "-verifysamples");
        row(12, "Save listfull file", "listfull.txt", "");
        row(13, "Save listdevices file", "listdevices.txt", "-listdevices");
        row(14, "Save listslots file", "listslots.txt", "-listslots");
        row(15, "Save listmedia file", "listmedia.txt", "-verifyroms");
        row(16, "Save listsoftware file", "listsoftware.txt", "-verifysamples");
        row(17, "Save verifysoftware file", "verifysoftware.txt", "-verifyroms");
        row(18, "Save getsoftlist file", "getsoftlist.txt", "-verifysamples");
        row(19, "Save verifysoftlist file", "verifysoftlist.txt", "-verifysamples");
        row(20, "Save listfull file", "listfull.txt", "");
        row(1000, "Save listfull file", "listfull.txt", "");
    }

    void everyExport()
    {
        QFETCH(int, position);
        QFETCH(QString, panel);
        QFETCH(QString, file);
        QFETCH(QString, argument);
        QCOMPARE(QString::fromLatin1(exportRow(position).panelTitle), panel);
        QCOMPARE(QString::fromLatin1(exportRow(position).fileName), file);
        QCOMPARE(exportArguments(position), argument.isEmpty() ? QStringList() : QStringList{argument});
    }

    void headersNameTheGameBehindTheSixthPosition()
    {
        const QString plain("Command:  mame  -help , is executed...\n\n");
        QCOMPARE(commandHeader(0, "galaga", "-help"), plain);
        QCOMPARE(commandHeader(6, "galaga", "-help"), plain);
        QCOMPARE(commandHeader(-1, "galaga", "-help"), plain);
        QCOMPARE(commandHeader(7, "galaga", "-listxml"),
                 QString("Command:  mame  galaga -listxml , is executed...\n\n"));
        QCOMPARE(commandHeader(21, "galaga", "-listdevices"),
                 QString("Command:  mame  galaga -listdevices , is executed...\n\n"));
        QCOMPARE(exportHeader("-listxml"), QString("Command:  mame  -listxml , is executing...\n\n"));
    }
};

TESSERA_TEST(EmulatorCommandsTest);
#include "emulatorcommandstest.moc"
