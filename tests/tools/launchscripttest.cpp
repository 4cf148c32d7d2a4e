#include "tools/launchscript.h"

#include "support/testmain.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace tessera;

class LaunchScriptTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyTemplate_data()
    {
        QTest::addColumn<int>("emulator");
        QTest::addColumn<int>("format");
        QTest::addColumn<QString>("text");
        const auto row = [](int emulator, int format, const char* text) {
            QTest::addRow("%d %d", emulator, format) << emulator << format << text;
        };
        row(0, 0, "cd /my apps\n./mame pong -a \"b c\"");
        row(0, 1, "#!/bin/sh\n\ncd /my apps\n./mame pong -a \"b c\"");
        row(0, 2, "do shell script \"cd /my apps;./mame pong -a \\\"b c\\\"\"");
        row(1, 0, "\"/my apps/mame\" -Game pong -a \"b c\"");
        row(1, 1, "#!/bin/sh\n\n\"/my apps/mame\" -Game pong -a \"b c\"");
        row(1, 2, "do shell script \"\\\"/my apps/mame\\\" -Game pong -a \\\"b c\\\"\"");
        row(2, 0, "open -a \"/my apps/mame\" \"/home/me/Documents/MacMAME User Data/ROMs/pong.zip\"");
        row(2, 1,
            "#!/bin/sh\n\nopen -a \"/my apps/mame\" \"/home/me/Documents/MacMAME User Data/ROMs/pong.zip\"");
        row(2, 2,
            "do shell script \"open -a \\\"/my apps/mame\\\" "
            "\\\"/home/me/Documents/MacMAME User Data/ROMs/pong.zip\\\"\"");
        row(3, 0, "");
        row(3, 1, "");
        row(-1, 2, "");
        row(0, 3, "");
        row(2, -1, "");
    }

    void everyTemplate()
    {
        QFETCH(int, emulator);
        QFETCH(int, format);
        QFETCH(QString, text);
        const ScriptRequest request{
            scriptFormatAt(format), scriptEmulatorAt(emulator), "/my apps/mame", "/home/me", "pong",
            {"-a", "\"b c\""}};
        QCOMPARE(scriptText(request), text);
    }

    void withoutOptionsItEndsBehindTheGame()
    {
        ScriptRequest request;
        request.emulatorPath = "/usr/games/mame";
        request.game = "pong";
        QCOMPARE(scriptText(request), QString("cd /usr/games\n./mame pong"));
        request.format = ScriptFormat::AppleScript;
        QCOMPARE(scriptText(request), QString("do shell script \"cd /usr/games;./mame pong\""));
    }

    void aValueIsNoTemplate()
    {
        ScriptRequest request;
        request.emulatorPath = "/%@/%1/mame";
        request.game = "%@";
        QCOMPARE(scriptText(request), QString("cd /%@/%1\n./mame %@"));
    }

    void fileNames_data()
    {
        QTest::addColumn<int>("choice");
        QTest::addColumn<QString>("name");
        QTest::newRow("0") << 0 << "puckman.tool";
        QTest::newRow("1") << 1 << "Puck - Man.tool";
        QTest::newRow("2") << 2 << QString::fromUtf8("パックマン.tool");
        QTest::newRow("3") << 3 << ".tool";
        QTest::newRow("4") << 4 << "SDL MAME_puckman.tool";
        QTest::newRow("5") << 5 << "SDL MAME_Puck - Man.tool";
        QTest::newRow("6") << 6 << QString::fromUtf8("SDL MAME_パックマン.tool");
        QTest::newRow("7") << 7 << ".tool";
        QTest::newRow("8") << 8 << ".tool";
        QTest::newRow("-1") << -1 << ".tool";
        QTest::newRow("-4") << -4 << ".tool";
    }

    void fileNames()
    {
        QFETCH(int, choice);
        QFETCH(QString, name);
        const ScriptTitles titles{"puckman", "Puck / Man", QString::fromUtf8("パックマン"), "SDL MAME"};
        QCOMPARE(scriptFileName(choice, ScriptFormat::CommandFile, titles), name);
    }

    void everyFormatHasItsExtension()
    {
        QCOMPARE(scriptFileName(0, ScriptFormat::ShellScript, {"a", {}, {}, {}}), QString("a.sh"));
        QCOMPARE(scriptFileName(0, ScriptFormat::AppleScript, {"a", {}, {}, {}}), QString("a.scpt"));
        QCOMPARE(scriptFileName(0, ScriptFormat::None, {"a", {}, {}, {}}), QString("a"));
    }

    void onlyACommandFileCanBeStarted()
    {
        QTemporaryDir folder;
        const QString path = folder.filePath("script");
        const auto modeOf = [&](ScriptFormat format) {
            QFile::remove(path);
            if (!saveScript(path, format, QString::fromUtf8("日本\n")))
                return -1;
            return static_cast<int>(QFile::permissions(path)) & 0x7077; // the owner's, group's and others'
        };
        QCOMPARE(modeOf(ScriptFormat::CommandFile), 0x7055);
        QCOMPARE(modeOf(ScriptFormat::ShellScript) & 0x1011, 0);
        QCOMPARE(modeOf(ScriptFormat::AppleScript) & 0x1011, 0);
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("日本\n"));
    }
};

TESSERA_TEST(LaunchScriptTest);
#include "launchscripttest.moc"
