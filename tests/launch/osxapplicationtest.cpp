#include "launch/osxapplication.h"

#include "launch/aliasfile.h"
#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace tessera;

class OsxApplicationTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_folder;

    QString bundle(const QString& name, const QByteArray& plist)
    {
        const QString path = m_folder.filePath(name);
        QDir().mkpath(path + "/Contents");
        QFile file(path + "/Contents/Info.plist");
        if (!plist.isEmpty() && file.open(QIODevice::WriteOnly))
            file.write(plist);
        return path;
    }

private Q_SLOTS:
    void aBundleNamesItsExecutable_data()
    {
        QTest::addColumn<QByteArray>("plist");
        QTest::addColumn<QString>("executable");
        QTest::newRow("xml") << QByteArray("<?xml version=\"1.0\"?><plist version=\"1.0\"><dict>"
                                           "<key>CFBundleExecutable</key><string>a &amp; b</string>"
                                           "</dict></plist>")
                             << "a & b";
        QTest::newRow("binary") << QByteArray::fromHex(
            "62706c6973743030d101025f1012434642756e646c6545786563757461626c65546d616d65080b200000000000"
            "000101000000000000000300000000000000000000000000000025")
                                << "mame";
        QTest::newRow("without the key") << QByteArray("<plist version=\"1.0\"><dict/></plist>") << "MAME";
        QTest::newRow("no dictionary") << QByteArray("<plist version=\"1.0\"><array/></plist>") << "MAME";
        QTest::newRow("broken") << QByteArray("<plist") << "MAME";
        QTest::newRow("without the file") << QByteArray() << "MAME";
    }

    void aBundleNamesItsExecutable()
    {
        QFETCH(QByteArray, plist);
        QFETCH(QString, executable);
        const QString path = bundle(QString::fromLatin1(QTest::currentDataTag()) + "/MAME.app", plist);
        QCOMPARE(bundleExecutable(path), path + "/Contents/MacOS/" + executable);
    }

    void aPlainExecutableIsTakenAsItIs()
    {
        QCOMPARE(bundleExecutable(QStringLiteral("/usr/games/mame")), QStringLiteral("/usr/games/mame"));
    }

    void theGameComesFirst()
    {
        QCOMPARE(osxGameArguments("pong", ""), QStringList({"-Game", "pong"}));
        QCOMPARE(osxGameArguments("pong", "/my roms"),
                 QStringList({"-Game", "pong", "-RomPath", "/my roms"}));
        QCOMPARE(osxGameArguments("/r/roms/galaga.zip", "/my roms"),
                 QStringList({"-Game", "galaga", "-RomPath", "/r/roms"}));
    }

    void linksAreFollowedToTheirEnd()
    {
        const auto path = [this](const char* name) { return m_folder.filePath(QLatin1String(name)); };
        QVERIFY(QDir().mkpath(path("real folder")));
        QVERIFY(QFile::link(path("real folder"), path("one")));
        QVERIFY(QFile::link(path("one"), path("two")));
        QVERIFY(QFile::link(path("nowhere"), path("dangling")));
        QVERIFY(QFile::link(path("round"), path("round")));
        QCOMPARE(resolveAliasFileWithPath(path("real folder")), path("real folder"));
        // No link itself, it is not touched.
        QCOMPARE(resolveAliasFileWithPath(path("two/../real folder")), path("two/../real folder"));
        QCOMPARE(resolveAliasFileWithPath(path("two")), QFileInfo(path("real folder")).canonicalFilePath());
        for (const char* missing : {"missing", "dangling", "round"})
            QVERIFY2(!resolveAliasFileWithPath(path(missing)), missing);
    }
};

TESSERA_TEST(OsxApplicationTest);
#include "osxapplicationtest.moc"
