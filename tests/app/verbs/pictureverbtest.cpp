#include "verbs/stagedverbs.h"

#include <QDir>

using namespace tessera;

class PictureVerbTest : public test::StagedVerbs
{
    Q_OBJECT

private Q_SLOTS:
    void pictureSaysWhereItLies()
    {
        write("puckman.png", "");
        const QStringList asked{"picture", "pacman", "--folder", m_folder->path()};
        expectRefusal(asked, "There is no picture of \u201cpacman\u201d in ");
        Outcome outcome = tessera(asked + QStringList{"--parent", "puckman"});
        QCOMPARE(outcome.out, path("puckman.png").toUtf8() + '\n');
        QCOMPARE(outcome.status, 0);
        expectRefusal(asked + QStringList{"--parent", "puckman", "--no-parent"}, "no picture");
        write("pacman.png", "");
        outcome = tessera(asked + QStringList{"--parent", "puckman"});
        QCOMPARE(outcome.out, path("pacman.png").toUtf8() + '\n');
    }

    void pictureStaysInItsFolder()
    {
        write("secret.png", "");
        QVERIFY(QDir().mkpath(path("art")));
        expectRefusal({"picture", "../secret", "--folder", path("art")}, "no picture");
        expectRefusal({"picture", "pong", "--folder", path("art"), "--parent", "../secret"}, "no picture");
    }
};

TESSERA_TEST(PictureVerbTest);
#include "pictureverbtest.moc"
