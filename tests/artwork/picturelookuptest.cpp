#include "artwork/picturelookup.h"

#include "support/testmain.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace tessera;

class PictureLookupTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placesAreLookedAtInTheirOrder()
    {
        const QStringList places{"puckman/0000.png", "puckman.png", "pacman/0000.png", "pacman.png"};
        for (const QString& place : places)
            write(place);
        for (const QString& place : places) {
            QCOMPARE(found("puckman", "pacman"), path(place));
            QCOMPARE(found("puckman"), place.startsWith("puckman") ? path(place) : QString());
            QVERIFY(QFile::remove(path(place)));
        }
        QCOMPARE(found("puckman", "pacman"), QString());
    }

    void aNumberedSnapshotIsPreferred()
    {
        write("pacman.png");
        QCOMPARE(found("pacman"), path("pacman.png"));
        write("pacman/0000.png");
        QCOMPARE(found("pacman"), path("pacman/0000.png"));
    }

    void aCloneWithoutAPictureHasItsParents()
    {
        write("pacman.png");
        const auto picture = findPicture({m_folder->path(), "puckman", "pacman"});
        QCOMPARE(picture, (FoundPicture{path("pacman.png"), true}));
        write("puckman.png");
        const auto own = findPicture({m_folder->path(), "puckman", "pacman"});
        QCOMPARE(own, (FoundPicture{path("puckman.png"), false}));
    }

    void theParentsPictureCanBeSuppressed()
    {
        write("pacman.png");
        QCOMPARE(found("puckman"), QString());
    }

    void withoutANameThereIsNoPicture()
    {
        write(".png");
        write("0000.png");
        QCOMPARE(found(""), QString());
        QCOMPARE(found("", ""), QString());
    }

    void withoutAFolderThereIsNoPicture()
    {
        write("pong.png");
        const QString before = QDir::currentPath();
        QVERIFY(QDir::setCurrent(m_folder->path()));
        QVERIFY(!findPicture({"", "pong", "pong"}));
        QVERIFY(QDir::setCurrent(before));
    }

    void aNameDoesNotLeaveTheFolder_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("the folder above") << "..";
        QTest::newRow("beside the folder") << "../secret";
        QTest::newRow("through a folder") << "pong/../../secret";
        QTest::newRow("within a folder") << "a/b";
        QTest::newRow("from the root") << "/pong";
        QTest::newRow("the folder itself") << ".";
        QTest::newRow("hidden") << ".pong";
        QTest::newRow("NUL") << QString(QChar(0));
        QTest::newRow("NUL behind a name") << QString(QStringLiteral("pong") + QChar(0));
    }

    void aNameDoesNotLeaveTheFolder()
    {
        QFETCH(QString, name);
        // Whatever the name leads to is there.
        for (const char* file : {"secret.png", "art/pong.png", "art/a/b.png", "art/0000.png", "0000.png",
                                 "art/.pong.png", "art/pacman.png", "art/...png", "art/..png"})
            write(file);
        QVERIFY(QDir().mkpath(path("art/pong")));
        const QString art = path("art");
        QVERIFY(!findPicture({art, name, std::nullopt}));
        QVERIFY(!findPicture({art, name, "pacman"}));
        QVERIFY(!findPicture({art, "puckman", name}));
    }

    void aNameIsTakenAsItStands_data()
    {
        QTest::addColumn<QString>("name");
        QTest::newRow("dots within") << "a..b";
        QTest::newRow("a blank") << "a b";
        QTest::newRow("a placeholder") << "%1%2";
        QTest::newRow("Japanese") << QString::fromUtf8("パ");
        QTest::newRow("backslash") << "a\\b";
    }

    void aNameIsTakenAsItStands()
    {
        QFETCH(QString, name);
        write(name + QStringLiteral(".png"));
        QCOMPARE(found(name), path(name + QStringLiteral(".png")));
    }

    void anUnreadablePictureIsStillChosen()
    {
        write("pong/0000.png");
        write("pong.png");
        QVERIFY(QFile::setPermissions(path("pong/0000.png"), QFile::Permissions()));
        QCOMPARE(found("pong"), path("pong/0000.png"));
    }

    void onlyPngFilesAreLookedFor()
    {
        write("pong.jpg");
        write("pong.zip");
        write("pong/0001.png");
        QCOMPARE(found("pong"), QString());
    }

    void aFolderIsNoPicture()
    {
        QVERIFY(QDir().mkpath(path("pong/0000.png")));
        QVERIFY(QDir().mkpath(path("pong.png")));
        write("atari.png");
        QCOMPARE(found("pong"), QString());
        QCOMPARE(found("pong", "atari"), path("atari.png"));
    }

    void aLinkThatLeadsNowhereIsNoPicture()
    {
        QVERIFY(QFile::link(path("gone.png"), path("pong.png")));
        QCOMPARE(found("pong"), QString());
        write("gone.png");
        QCOMPARE(found("pong"), path("pong.png"));
    }

    void init() { m_folder = std::make_unique<QTemporaryDir>(); }

private:
    QString path(const QString& name) const { return m_folder->filePath(name); }

    void write(const QString& name) const
    {
        QVERIFY(QDir().mkpath(QFileInfo(path(name)).path()));
        QFile file(path(name));
        QVERIFY(file.open(QIODevice::WriteOnly));
    }

    QString found(const QString& name, const std::optional<QString>& parent = std::nullopt) const
    {
        const auto picture = findPicture({m_folder->path(), name, parent});
        return picture ? picture->path : QString();
    }

    std::unique_ptr<QTemporaryDir> m_folder;
};

TESSERA_TEST(PictureLookupTest);
#include "picturelookuptest.moc"
