#include "platform/qt/singleinstance.h"

#include "support/testmain.h"

#include <QFile>
#include <QLocalSocket>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QThread>

#include <cstdio>
#include <unistd.h>

using namespace tessera;

class SingleInstanceTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void nobodyListensAtFirst()
    {
        QTemporaryDir folder;
        SingleInstance instance(folder.filePath(QStringLiteral("socket")));
        QVERIFY(!instance.handOver(QStringLiteral("/roms/pong.zip")));
    }

    void aSecondStartHandsItsFileOver_data()
    {
        QTest::addColumn<QString>("path");
        QTest::newRow("a file") << QStringLiteral("/roms/ポン pong.zip");
        QTest::newRow("none") << QString();
    }

    void aSecondStartHandsItsFileOver()
    {
        QFETCH(QString, path);
        QTemporaryDir folder;
        const QString socket = folder.filePath(QStringLiteral("socket"));
        SingleInstance first(socket);
        QVERIFY(first.listen());
        QSignalSpy handedOver(&first, &SingleInstance::handedOver);
        bool taken = false;
        // The second start waits for its answer, as a process of its own would.
        const std::unique_ptr<QThread> second(
            QThread::create([&] { taken = SingleInstance(socket).handOver(path); }));
        second->start();
        QTRY_COMPARE(handedOver.count(), 1);
        QVERIFY(second->wait());
        QVERIFY(taken);
        QCOMPARE(handedOver.at(0).at(0).toString(), path);
    }

    // An alert may stand for as long as a file is opened, and the other start leaves meanwhile.
    void aFileIsOpenedWhenItsMessageIsDoneWith()
    {
        QTemporaryDir folder;
        const QString name = folder.filePath(QStringLiteral("socket"));
        SingleInstance first(name);
        QVERIFY(first.listen());
        QLocalSocket second;
        QStringList heard;
        connect(&first, &SingleInstance::handedOver, &first, [&](const QString& path) {
            heard << path;
            if (heard.size() > 1)
                return;
            // Within its own message a socket tells of no other.
            second.write("another\n");
            QTRY_COMPARE(heard.size(), 2);
            second.abort();
        });
        second.connectToServer(name);
        QVERIFY(second.waitForConnected());
        second.write("one\n");
        QTRY_COMPARE(heard, (QStringList{QStringLiteral("one"), QStringLiteral("another")}));
    }

    void afterItsEndTheNextStartGoesOnByItself()
    {
        QTemporaryDir folder;
        const QString name = folder.filePath(QStringLiteral("socket"));
        SingleInstance first(name);
        QVERIFY(first.listen());
        QSignalSpy handedOver(&first, &SingleInstance::handedOver);
        // One that is not answered yet hears that it must.
        QLocalSocket second;
        second.connectToServer(name);
        QVERIFY(second.waitForConnected());
        second.write("half of a mess");
        QVERIFY(second.waitForBytesWritten());
        QCoreApplication::processEvents();
        first.stopListening();
        QTRY_COMPARE(second.state(), QLocalSocket::UnconnectedState);
        QVERIFY(!first.handOver(QString()));
        SingleInstance third(name);
        QVERIFY(third.listen());
        QCOMPARE(handedOver.count(), 0);
    }

    void aSocketLeftByAKilledProgramIsTakenOver()
    {
        QTemporaryDir folder;
        const QString socket = folder.filePath(QStringLiteral("socket"));
        {
            QLocalServer abandoned;
            QVERIFY(abandoned.listen(socket));
            QVERIFY(::link(qPrintable(socket), qPrintable(socket + QStringLiteral(".hard"))) == 0);
        }
        QFile::remove(socket);
        QVERIFY(::rename(qPrintable(socket + QStringLiteral(".hard")), qPrintable(socket)) == 0);
        SingleInstance instance(socket);
        QVERIFY(!instance.handOver(QString()));
        QVERIFY(instance.listen());
    }
};

TESSERA_TEST(SingleInstanceTest);
#include "singleinstancetest.moc"
