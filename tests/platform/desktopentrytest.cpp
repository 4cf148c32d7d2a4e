#include "platform/desktopentry.h"

#include "support/testmain.h"

using namespace tessera;

class DesktopEntryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void commands_data()
    {
        QTest::addColumn<QByteArray>("exec");
        QTest::addColumn<QStringList>("command");
        const QString file("/a b.zip");
        QTest::newRow("a file") << QByteArray("Exec=viewer -x %f") << QStringList{"viewer", "-x", file};
        QTest::newRow("files") << QByteArray("Exec = viewer %F -y") << QStringList{"viewer", file, "-y"};
        QTest::newRow("a URL") << QByteArray("Exec=viewer %U") << QStringList{"viewer", "file:///a%20b.zip"};
        QTest::newRow("no place for it") << QByteArray("Exec=viewer") << QStringList{"viewer", file};
        QTest::newRow("icon and name") << QByteArray("Exec=viewer %i %c %f") << QStringList{"viewer", file};
        QTest::newRow("a percent sign")
            << QByteArray("Exec=viewer 100%% %f") << QStringList{"viewer", "100%", file};
        QTest::newRow("quotes") << QByteArray("Exec=\"/my apps/viewer\" \"\" \"a\\\\\\\\b\" %f")
                                << QStringList{"/my apps/viewer", "", "a\\b", file};
    }

    void commands()
    {
        QFETCH(QByteArray, exec);
        QFETCH(QStringList, command);
        const auto got = desktopEntryCommand(
            "[Desktop Entry]\nName=x\n" + exec + "\n[Desktop Action new]\nExec=other %f\n", "/a b.zip");
        QVERIFY(got);
        QCOMPARE(*got, command);
    }

    void whatIsWrittenIsReadAgain()
    {
        const QStringList command{
            "/my apps/mame", "pong", "", "a\"b", "c\\d", "$HOME `x` 100%", QString::fromUtf8("日本\tx")};
        const QByteArray entry = desktopEntry("Pong\nof old", command, "/my apps");
        QVERIFY(entry.contains("\nName=Pong\\nof old\n"));
        QVERIFY(entry.contains("\nPath=/my apps\n"));
        QVERIFY(!entry.contains("Icon"));
        QVERIFY(desktopEntry("Pong", command, "/", "/a \\b.png").contains("\nIcon=/a \\\\b.png\n"));
        QCOMPARE(desktopEntryCommand(entry, "/f"), std::optional(command + QStringList{"/f"}));
    }

    void whatStartsNothing()
    {
        QVERIFY(!desktopEntryCommand("", "/a"));
        QVERIFY(!desktopEntryCommand("[Desktop Entry]\nExec=\n", "/a"));
        QVERIFY(!desktopEntryCommand("[Other]\nExec=x\n", "/a"));
    }
};

TESSERA_TEST(DesktopEntryTest);
#include "desktopentrytest.moc"
