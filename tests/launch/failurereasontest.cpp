#include "launch/failurereason.h"

#include "support/argumenttexts.h"
#include "support/testmain.h"

using namespace tessera;

class FailureReasonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void saysWhy_data()
    {
        QTest::addColumn<QString>("printed");
        QTest::addColumn<QString>("key");
        QTest::addColumn<QStringList>("named");
        const auto row = [](const char* name, const char* printed, const char* key,
                            const QStringList& named) { QTest::newRow(name) << printed << key << named; };
        row("missing, of today",
            "error: XDG_RUNTIME_DIR is invalid.\n"
            "gg1_1b.3p NOT FOUND (tried in galaga)\n51xx.bin NOT FOUND (tried in namco51 galaga)\n"
            "Fatal error: Required files are missing, the machine cannot be run.\n",
            "reason_missingfrom", {"gg1_1b.3p, 51xx.bin", "galaga.zip, namco51.zip"});
        row("missing, of old",
            "a b.bin NOT FOUND\nERROR: required files are missing, the game cannot be run.\n",
            "reason_missing", {"a b.bin"});
        row("wrong",
            "gg1_1b.3p WRONG LENGTH (expected: 00001000 found: 00000002)\ngg1_1b.3p WRONG CHECKSUMS:\n",
            "reason_wrong", {"gg1_1b.3p"});
        row("an option", "Error: unknown option: -foo\n", "reason_option", {"-foo"});
        row("a system", "Unknown system \"/r/pong.zip\"\n", "reason_system", {"/r/pong.zip"});
        row("a system like others",
            "Unknown system 'galgaa'\n\n\"galgaa\" approximately matches the following\n"
            "supported machines (best match first):\n\n"
            "galaga            Galaga (Namco rev. B)                       (Namco, 1981)\n"
            "galaga3           Galaga 3 (GP3 rev. D)                       (Namco, 1984)\n",
            "reason_closesystems", {"galgaa", "galaga, galaga3"});
        for (const char* words : {"X11 not available", "Cannot open display :0", "unable to open X display",
                                  "can't open the display", "couldn't open display", "could not open display",
                                  "no available video device"})
            row(words, words, "reason_display", {});
        row("an option, in other letters", "ERROR: Unknown Option: -foo=1 here\n", "reason_option",
            {"-foo=1"});
        row("incorrect", "x INCORRECT CHECKSUM:\ny INCORRECT LENGTH: 3\nx INCORRECT LENGTH: 3\n",
            "reason_wrong", {"x, y"});
        row("no display", "Could not initialize SDL No available video device\n", "reason_display", {});
    }

    void saysWhy()
    {
        QFETCH(QString, printed);
        QFETCH(QString, key);
        QFETCH(QStringList, named);
        const auto reasons = failureReasons(printed);
        QCOMPARE(reasons.size(), std::size_t{1});
        QCOMPARE(QString::fromLatin1(reasons[0].key), key);
        QCOMPARE(reasons[0].arguments, named);
    }

    void manyFilesAreCounted_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<QString>("named");
        QTest::newRow("six") << 6 << "rom1, rom2, rom3, rom4, rom5, rom6";
        QTest::newRow("seven") << 7 << "reason_more (rom1, rom2, rom3, rom4, rom5, rom6, 1)";
        QTest::newRow("nine") << 9 << "reason_more (rom1, rom2, rom3, rom4, rom5, rom6, 3)";
    }

    void manyFilesAreCounted()
    {
        QFETCH(int, count);
        const test::ArgumentTexts texts;
        QString printed;
        for (int i = 1; i <= count; ++i)
            printed += QStringLiteral("rom%1 NOT FOUND (tried in set)\n").arg(i);
        const auto reasons = failureReasons(printed);
        QTEST(reasons.at(0).arguments.at(0), "named");
        QCOMPARE(reasons.at(0).arguments.at(1), QStringLiteral("set.zip"));
    }

    // The most usual first.
    void severalReasonsAreSaidInOrder()
    {
        QStringList keys;
        for (const Failure& reason :
             failureReasons("could not initialize SDL\nUnknown system 'x'\nError: unknown option: -o\n"
                            "a WRONG LENGTH\nb NOT FOUND\n"))
            keys << QString::fromLatin1(reason.key);
        QCOMPARE(keys,
                 QStringList(
                     {"reason_missing", "reason_wrong", "reason_option", "reason_system", "reason_display"}));
    }

    void whatIsNotSaidIsNotGuessed_data()
    {
        QTest::addColumn<QString>("printed");
        QTest::newRow("nothing") << QString();
        QTest::newRow("words") << "Average speed: 100.00%\nleaving\n";
        QTest::newRow("a verification") << "galaga      : gg1_1b.3p (4096 bytes) - NOT FOUND (galaga)\n";
        QTest::newRow("not needed") << "a NOT FOUND BUT OPTIONAL\nb NOT FOUND - NO GOOD DUMP KNOWN\n";
    }

    void whatIsNotSaidIsNotGuessed()
    {
        QFETCH(QString, printed);
        QVERIFY(failureReasons(printed).empty());
    }
};

TESSERA_TEST(FailureReasonTest);
#include "failurereasontest.moc"
