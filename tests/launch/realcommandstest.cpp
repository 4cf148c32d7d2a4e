#include "launch/emulatorcommands.h"

#include "launch/emulatortask.h"
#include "support/needed.h"
#include "support/scripteddesktop.h"
#include "support/testmain.h"

#include <QFileInfo>
#include <QSignalSpy>

using namespace tessera;

/// The commands of the installed emulator, as far as it knows them, for one of its games.
class RealCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void answers_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<int>("status");
        QTest::addColumn<QString>("part");
        const auto row = [](int position, int status, const char* part) {
            QTest::addRow("%d", position) << position << status << part;
        };
        row(0, 0, "MAME");
        row(4, 0, "rompath");
        row(5, 0, "-rompath");
        row(7, 0, "<machine name=\"galaga\"");
        row(8, 0, "galaga");
        row(10, 0, "galaga.cpp");
        row(11, 0, "Clone of:");
        row(12, 0, "Source file:");
        row(13, 0, "ab036c9f");
        row(14, 0, "ROMs required");
        row(15, 0, "");
        row(17, 2, "romset \"galaga\"");
        row(18, 2, "sampleset \"galaga\"");
        row(20, 2, "Identifying");
        // Deliberate: what they begin with is no system.
        row(21, 6, "Unknown system");
        row(22, 6, "Unknown system");
        row(23, 6, "Unknown system");
    }

    void answers()
    {
        QFETCH(int, position);
        QFETCH(int, status);
        QFETCH(QString, part);
        const QString mame = QStringLiteral("/usr/games/mame");
        TESSERA_NEEDS(QFileInfo::exists(mame), "MAME");
        test::ScriptedDesktop desktop;
        EmulatorTask task(desktop);
        QString text;
        connect(&task, &EmulatorTask::output, this, [&](const QString& piece) { text += piece; });
        QSignalSpy ended(&task, &EmulatorTask::ended);
        task.start(mame, QStringLiteral("/tmp"),
                   *commandArguments(position, {"galaga", "/nowhere/galaga.zip", mame}));
        QVERIFY(task.waitForExit());
        QCOMPARE(ended.at(0).at(0).toInt(), status);
        QVERIFY2(text.contains(part), qPrintable(text.left(500)));
    }
};

TESSERA_TEST(RealCommandsTest);
#include "realcommandstest.moc"
