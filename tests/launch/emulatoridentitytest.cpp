#include "launch/emulatoridentity.h"

#include "support/testmain.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace tessera;

class EmulatorIdentityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aProgramIsItsPathItsSizeAndItsTime()
    {
        const QTemporaryDir folder;
        const QString path = QFileInfo(folder.path()).canonicalFilePath() + "/mame";
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("12345");
        const QDateTime time(QDate(2001, 2, 3), QTime(4, 5, 6), Qt::UTC);
        QVERIFY(file.flush() && file.setFileTime(time, QFileDevice::FileModificationTime));
        file.close();
        const auto identity = EmulatorIdentity::of(path);
        QVERIFY(identity);
        QCOMPARE(identity->path, path);
        QCOMPARE(identity->size, 5);
        QCOMPARE(identity->modified, time.toMSecsSinceEpoch());
        QCOMPARE(identity->text(), "5 " + QString::number(time.toMSecsSinceEpoch()) + ' ' + path);
        // A link is what it leads to.
        QVERIFY(QFile::link(path, folder.filePath("link")));
        QVERIFY(EmulatorIdentity::of(folder.filePath("link")) == identity);
    }

    void whatIsNoFileIsNoProgram()
    {
        const QTemporaryDir folder;
        QVERIFY(!EmulatorIdentity::of(QString()));
        QVERIFY(!EmulatorIdentity::of(folder.path()));
        QVERIFY(!EmulatorIdentity::of(folder.filePath("missing")));
        QVERIFY(QFile::link(folder.filePath("missing"), folder.filePath("dangling")));
        QVERIFY(!EmulatorIdentity::of(folder.filePath("dangling")));
    }
};

TESSERA_TEST(EmulatorIdentityTest);
#include "emulatoridentitytest.moc"
