#include "support/writestore.h"
#include "verbs/stagedverbs.h"

using namespace tessera;

class ArgumentsVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
    void argumentsAreTheBuildersElements()
    {
        const QList<QByteArray> lines = tessera({QStringLiteral("arguments")}).out.split('\n');
        QCOMPARE(lines.mid(0, 6),
                 (QList<QByteArray>{"-video", "opengl", "-window", "-prescale", "1", "-nomaximize"}));
        const auto bios = lines.indexOf("-bios");
        QVERIFY(bios > 0);
        QCOMPARE(lines[bios + 1], QByteArray("\"\""));
    }

    void settingsAreTriedWithoutChangingThem()
    {
        const QByteArray out
            = tessera({QStringLiteral("arguments"), QStringLiteral("--set"), QStringLiteral("Maximize=true"),
                       QStringLiteral("--set"), QStringLiteral("Videodriver=0")})
                  .out;
        QVERIFY(out.startsWith("-video\nsoft\n"));
        QVERIFY(out.contains("\n-maximize\n"));
        QVERIFY(tessera({QStringLiteral("arguments")}).out.contains("\n-nomaximize\n"));
    }

    void whatIsTypedForANumberIsSentAsItStands_data()
    {
        QTest::addColumn<QByteArray>("typed");
        for (const char* typed : {"", "01.50", "1.1", "0.1234567", "1234567", "a word"})
            QTest::newRow(*typed ? typed : "nothing") << QByteArray(typed);
    }

    void whatIsTypedForANumberIsSentAsItStands()
    {
        QFETCH(QByteArray, typed);
        const auto set = [&](const char* key) { return QString::fromLatin1(key + QByteArray("=") + typed); };
        const QByteArrayList words
            = tessera({QStringLiteral("arguments"), QStringLiteral("--set"), set("Displaybeam"),
                       QStringLiteral("--set"), set("Displayflicker"), QStringLiteral("--set"),
                       set("Soundvolume")})
                  .out.split('\n');
        for (const char* option : {"-beam", "-flicker", "-volume"}) {
            QVERIFY(words.contains(option));
            QCOMPARE(words.value(words.indexOf(option) + 1), typed);
        }
    }

    void aPositionIsANumber()
    {
        const Outcome outcome
            = tessera({QStringLiteral("arguments"), QStringLiteral("--set"), QStringLiteral("Videodriver=")});
        QCOMPARE(outcome.status, 2);
    }

    void theRecordFileIsNamedAfterTheGame()
    {
        const GameRecord record{{"game", "pong", "pong", "Pong", "ポン", "1972", "Atari", "good", ""}};
        QVERIFY(writeStore(path(QStringLiteral("store.xml")), std::array{record}));
        const QByteArray out = tessera({QStringLiteral("arguments"), QStringLiteral("--catalogue"),
                                        path(QStringLiteral("store.xml")), QStringLiteral("--set"),
                                        QStringLiteral("Replaymove=true"), QStringLiteral("--set"),
                                        QStringLiteral("Recordfilepop=2"), QStringLiteral("pong")})
                                   .out;
        QVERIFY2(out.contains("-record\n\"ポン.inp\"\n"), out.constData());
    }

    void theOtherDialectHasItsOwnOptions()
    {
        const QByteArray out
            = tessera({QStringLiteral("arguments"), QStringLiteral("--dialect"), QStringLiteral("osx")}).out;
        QVERIFY(out.startsWith("-Cheat\n0\n-AutoSave\n0\n-SoundEnabled\n1\n"));
    }

    void anEmulatorTakesWhatItUnderstands()
    {
        write(QStringLiteral("usage.txt"),
              "Usage:  mame [machine] [media] [software] [options]\n\nOptions:\n\n"
              "-video               video output method\n-window              enable window mode\n"
              "-rompath             path to ROM sets\n");
        m_environment.insert(QStringLiteral("FAKE_USAGE"), path(QStringLiteral("usage.txt")));
        const Outcome outcome = tessera({QStringLiteral("arguments"), QStringLiteral("--for"),
                                         QStringLiteral(TESSERA_FAKEEMULATOR), QStringLiteral("pong")});
        QCOMPARE(outcome.out, QByteArray("pong\n-video\nopengl\n-window\n"));
        QVERIFY(outcome.err.contains("-multithreading") || outcome.err.contains("-nomultithreading"));
    }
};

TESSERA_TEST(ArgumentsVerbTest);
#include "argumentsverbtest.moc"
