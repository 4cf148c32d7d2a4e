#include "platform/recentdocuments.h"

#include "support/settings.h"
#include "support/testmain.h"

#include <QSignalSpy>

using namespace tessera;

class RecentDocumentsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theNewestStandsFirstAndOnce()
    {
        test::Settings settings;
        RecentDocuments recent(settings.defaults);
        QVERIFY(recent.paths().isEmpty());
        recent.note(QStringLiteral("/roms/pong.zip"));
        recent.note(QStringLiteral("/roms/galaga.zip"));
        recent.note(QStringLiteral("/roms/pong.zip"));
        QCOMPARE(recent.paths(),
                 (QStringList{QStringLiteral("/roms/pong.zip"), QStringLiteral("/roms/galaga.zip")}));
    }

    // As every setting that is written.
    void eachIsTold()
    {
        test::Settings settings;
        const QSignalSpy told(&settings.defaults, &DefaultsController::changed);
        RecentDocuments(settings.defaults).note(QStringLiteral("/roms/pong.zip"));
        QCOMPARE(told.size(), 1);
        QCOMPARE(told.first().value(0).toString(), QStringLiteral("RecentDocuments"));
    }

    void tenAreKept()
    {
        test::Settings settings;
        RecentDocuments recent(settings.defaults);
        for (int i = 0; i < 14; ++i)
            recent.note(QStringLiteral("/roms/%1.zip").arg(i));
        QCOMPARE(recent.paths().size(), 10);
        QCOMPARE(recent.paths().constFirst(), QStringLiteral("/roms/13.zip"));
    }
};

TESSERA_TEST(RecentDocumentsTest);
#include "recentdocumentstest.moc"
