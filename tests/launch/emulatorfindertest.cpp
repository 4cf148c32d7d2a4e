#include "launch/emulatorfinder.h"

#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace tessera;

class EmulatorFinderTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_root;

    QString put(const QString& path, bool executable = true)
    {
        const QString whole = m_root.filePath(path);
        QDir().mkpath(QFileInfo(whole).path());
        QFile file(whole);
        if (!file.open(QIODevice::WriteOnly))
            qFatal("no file");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner
                            | (executable ? QFile::ExeOwner : QFile::Permissions()));
        return whole;
    }

    EmulatorPlaces places() const
    {
        return {{m_root.filePath("path1"), m_root.filePath("path2"), m_root.filePath("games")},
                {m_root.filePath("flatpak")}};
    }

private Q_SLOTS:
    void init()
    {
        QDir(m_root.path()).removeRecursively();
        QDir().mkpath(m_root.path());
    }

    void findsNothingWhereThereIsNothing() { QCOMPARE(findEmulator(places()), QString()); }

    void takesTheFirstFolderThatHasOne()
    {
        const QString second = put("path2/mame");
        put("games/mame");
        QCOMPARE(findEmulator(places()), second);
        const QString first = put("path1/mame");
        QCOMPARE(findEmulator(places()), first);
    }

    void passesOverWhatCannotBeStarted()
    {
        put("path1/mame", false);
        QDir().mkpath(m_root.filePath("path2/mame"));
        const QString third = put("games/mame");
        QCOMPARE(findEmulator(places()), third);
    }

    void takesTheFlatpakLast()
    {
        const QString wrapper = put("flatpak/org.mamedev.MAME");
        QCOMPARE(findEmulator(places()), wrapper);
        const QString plain = put("games/mame");
        QCOMPARE(findEmulator(places()), plain);
    }

    void ignoresEmptyAndRelativeEntries()
    {
        put("mame");
        QVERIFY(QDir::setCurrent(m_root.path()));
        QCOMPARE(findEmulator({{"", "."}, {}}), QString());
        QVERIFY(QDir::setCurrent("/"));
    }

    void aChosenOneIsNeverReplaced()
    {
        const QString found = put("games/mame");
        QCOMPARE(emulatorToUse("/missing/mame", places()), QStringLiteral("/missing/mame"));
        QCOMPARE(emulatorToUse("", places()), found);
    }

    void looksWhereDistributionsPutIt()
    {
        qputenv("PATH", "/a:/b");
        const EmulatorPlaces standard = EmulatorPlaces::standard();
        QCOMPARE(standard.folders,
                 QStringList({"/a", "/b", "/usr/games", "/usr/local/bin", QDir::homePath() + "/.local/bin"}));
        QCOMPARE(standard.flatpakExports,
                 QStringList({"/var/lib/flatpak/exports/bin",
                              QDir::homePath() + "/.local/share/flatpak/exports/bin"}));
    }

    void cleanup() { qputenv("PATH", "/usr/bin:/bin"); }
};

TESSERA_TEST(EmulatorFinderTest);
#include "emulatorfindertest.moc"
