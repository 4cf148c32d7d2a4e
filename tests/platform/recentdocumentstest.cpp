#include "platform/recentdocuments.h"

#include "support/testmain.h"

#include <QTemporaryDir>

using namespace tessera;

class RecentDocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theNewestStandsFirstAndOnce()
    {
        QTemporaryDir folder;
        UserDefaults defaults(folder.filePath(QStringLiteral("settings.ini")));
        RecentDocuments recent(defaults);
        QVERIFY(recent.paths().isEmpty());
        recent.note(QStringLiteral("/roms/pong.zip"));
        recent.note(QStringLiteral("/roms/galaga.zip"));
        recent.note(QStringLiteral("/roms/pong.zip"));
        QCOMPARE(recent.paths(),
                 (QStringList{QStringLiteral("/roms/pong.zip"), QStringLiteral("/roms/galaga.zip")}));
    }

    void tenAreKept()
    {
        QTemporaryDir folder;
        UserDefaults defaults(folder.filePath(QStringLiteral("settings.ini")));
        RecentDocuments recent(defaults);
        for (int i = 0; i < 14; ++i)
            recent.note(QStringLiteral("/roms/%1.zip").arg(i));
        QCOMPARE(recent.paths().size(), 10);
        QCOMPARE(recent.paths().constFirst(), QStringLiteral("/roms/13.zip"));
    }
};

TESSERA_TEST(RecentDocumentsTest);
#include "recentdocumentstest.moc"
