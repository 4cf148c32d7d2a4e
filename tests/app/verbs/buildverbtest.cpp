#include "core/settingskeys.h"
#include "platform/userdefaults.h"
#include "verbs/stagedverbs.h"

#include <QDir>

using namespace tessera;

namespace {

constexpr char oneMachine[]
    = "<mame>\n<machine name=\"pong\" sourcefile=\"pong.cpp\">\n<description>Pong</description>\n"
      "</machine>\n</mame>\n";

} // namespace

class BuildVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
    void buildSaysWhatItIsBuiltWithout()
    {
        write(QStringLiteral("list.xml"), oneMachine);
        m_environment.insert(QStringLiteral("FAKE_LISTXML"), path(QStringLiteral("list.xml")));
        useStandIn();
        Outcome outcome = tessera({QStringLiteral("build")});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.err, QByteArray());

        UserDefaults settings(settingsPath());
        settings.setValue(keys::localizePath.name, path(QStringLiteral("gone.lst")));
        QVERIFY(settings.synchronize());
        outcome = tessera({QStringLiteral("build")});
        QCOMPARE(outcome.status, 0);
        QCOMPARE(outcome.out, QByteArray("The conversion work is finished.  ( 1 games )\n"));
        QVERIFY2(outcome.err.startsWith("tessera: ")
                     && outcome.err.contains(path(QStringLiteral("gone.lst")).toUtf8())
                     && outcome.err.contains("No such file"),
                 outcome.err.constData());
        QCOMPARE(outcome.err.count('\n'), 1);
    }

    void buildSaysWhenTheSettingsCannotBeWritten()
    {
        write(QStringLiteral("list.xml"), oneMachine);
        m_environment.insert(QStringLiteral("FAKE_LISTXML"), path(QStringLiteral("list.xml")));
        QVERIFY(QDir().mkpath(settingsPath()));
        const Outcome outcome = tessera(
            {QStringLiteral("build"), QStringLiteral("--emulator"), QStringLiteral(TESSERA_FAKEEMULATOR)});
        QCOMPARE(outcome.status, 0);
        QVERIFY2(outcome.err.startsWith("tessera: ") && outcome.err.contains(settingsPath().toUtf8()),
                 outcome.err.constData());
        QCOMPARE(outcome.err.count('\n'), 1);
    }
};

TESSERA_TEST(BuildVerbTest);
#include "buildverbtest.moc"
