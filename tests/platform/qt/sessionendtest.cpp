#include "platform/qt/sessionend.h"
#include "support/testmain.h"

#include <QSignalSpy>

#include <csignal>

using namespace tessera;

class SessionEndTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSignalEndsTheProgramInItsOwnTime_data()
    {
        QTest::addColumn<int>("number");
        QTest::newRow("asked to end") << SIGTERM;
        QTest::newRow("the terminal is closed") << SIGHUP;
        QTest::newRow("Ctrl+C") << SIGINT;
    }
    void aSignalEndsTheProgramInItsOwnTime()
    {
        QFETCH(int, number);
        const SessionEnd end;
        QSignalSpy ended(&end, &SessionEnd::ended);
        std::raise(number);
        QCOMPARE(ended.size(), 0);
        QTRY_COMPARE(ended.size(), 1);
    }

    void afterwardsSignalsMeanWhatTheyMeantBefore()
    {
        {
            const SessionEnd end;
        }
        struct sigaction action{};
        QCOMPARE(::sigaction(SIGTERM, nullptr, &action), 0);
        QVERIFY(action.sa_handler == SIG_DFL);
    }
};

TESSERA_TEST(SessionEndTest);
#include "sessionendtest.moc"
