#include "verbs/stagedverbs.h"

using namespace tessera;

class DiffVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
    void diffSaysWhatIsAnother()
    {
        writeStoreOf(QStringLiteral("old.store"), {"pong", "qix"});
        writeStoreOf(QStringLiteral("new.store"), {"galaga", "pong"});
        QStringList arguments{QStringLiteral("diff"), path(QStringLiteral("old.store")),
                              path(QStringLiteral("new.store"))};
        Outcome outcome = tessera(arguments);
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out,
                 QByteArray("Added: 1, gone: 1, renamed: 0, another status: 0.\n\n"
                            "Added: 1\n  galaga  Title of galaga\n\nGone: 1\n  qix  Title of qix\n"));
        write(
            QStringLiteral("favourites.xml"),
            "<plist version=\"1.0\"><array><dict><key>name</key><string>qix</string></dict></array></plist>");
        arguments << QStringLiteral("--favourites") << path(QStringLiteral("favourites.xml"));
        outcome = tessera(arguments);
        QVERIFY2(outcome.out.contains("Favourites among them: 1.\n\nFavourites among them: 1\n  qix"),
                 outcome.out);
        arguments[2] = arguments[1];
        QCOMPARE(tessera(arguments).out, QByteArray("Every machine is as it was.\n"));
        arguments[1] = path(QStringLiteral("none"));
        expectRefusal(arguments, "does not exist");
    }
};

TESSERA_TEST(DiffVerbTest);
#include "diffverbtest.moc"
