#include "stagedfavourites.h"

#include "catalogue/romfolders.h"
#include "support/testmain.h"

#include <QSignalSpy>

using namespace tessera;
using namespace tessera::test;

/// Searching the favourites, which hides some of them and changes none.
class FavouritesSearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<StagedFavourites>();
        m_staged->writeFile(entryText("pong", "Pong") + entryText("gradius", "Gradius", "-first")
                            + entryText("nemesis", "グラディウス") + entryText("asuper", "Super Gradius")
                            + entryText("gradius", "Gradius II", "-second"));
        m_staged->start();
    }
    void cleanup() { m_staged.reset(); }

    void whatIsFoundKeepsItsOrderAndTheBestIsSelected()
    {
        UCAppController& favourites = *m_staged->controller;
        const QSignalSpy counted(&favourites, &UCAppController::countChanged);
        favourites.search(QStringLiteral("gradius"));
        QCOMPARE(m_staged->shownNames(), (QStringList{"asuper", "gradius", "gradius"}));
        QCOMPARE(favourites.tableViewSelectionROM2(), QStringLiteral("gradius"));
        QCOMPARE(counted.size(), 1);
        favourites.search(QStringLiteral("guradi"));
        QCOMPARE(m_staged->shownNames(), (QStringList{"nemesis"}));
        QCOMPARE(favourites.tableViewSelectionROM2(), QStringLiteral("nemesis"));
        favourites.search(QStringLiteral("nowhere"));
        QCOMPARE(m_staged->shownNames(), QStringList());
        favourites.search(QString());
        QCOMPARE(m_staged->shownNames(), all);
    }

    void whereNothingFitsTheNearestNeedASecondReturn()
    {
        UCAppController& favourites = *m_staged->controller;
        QSignalSpy launched(&favourites, &UCAppController::launchRequested);
        const QSignalSpy said(&favourites, &UCAppController::statusMessage);
        favourites.search(QStringLiteral("gradios"));
        QVERIFY(favourites.list().isNearest());
        QCOMPARE(favourites.tableViewSelectionROM2(), QStringLiteral("gradius"));
        favourites.startByReturn();
        QCOMPARE(launched.size(), 0);
        QCOMPARE(said.size(), 1);
        favourites.startByReturn();
        QCOMPARE(launched.size(), 1);
        favourites.search(QStringLiteral("gradius"));
        favourites.startByReturn();
        QCOMPARE(launched.size(), 2);
    }

    void keysAndMinusesMeanTheSame()
    {
        UCAppController& favourites = *m_staged->controller;
        favourites.search(QStringLiteral("title:gradius -name:super"));
        QCOMPARE(m_staged->shownNames(), (QStringList{"gradius", "gradius"}));
        favourites.search(QStringLiteral("have:no name:pong"));
        QCOMPARE(m_staged->shownNames(), (QStringList{"pong"}));
        QVERIFY(writeBytes(m_staged->path(QStringLiteral("pong.zip")), "x"));
        favourites.finder().setRomFolders(
            std::make_shared<const RomFolders>(m_staged->folder.path(), QStringList()));
        favourites.search(QStringLiteral("have:yes"));
        QCOMPARE(m_staged->shownNames(), (QStringList{"pong"}));
    }

    void itHoldsBesideWhatWasPlayedLately()
    {
        UCAppController& favourites = *m_staged->controller;
        favourites.search(QStringLiteral("gradius"));
        favourites.showRecentlyPlayed(true);
        QCOMPARE(m_staged->shownNames(), QStringList());
        favourites.showRecentlyPlayed(false);
        QCOMPARE(m_staged->shownNames(), (QStringList{"asuper", "gradius", "gradius"}));
    }

    void aSortHoldsWhileItIsSearched()
    {
        UCAppController& favourites = *m_staged->controller;
        favourites.search(QStringLiteral("gradius"));
        m_staged->table->sortByColumn(0, Qt::DescendingOrder);
        QCOMPARE(m_staged->shownNames(), (QStringList{"gradius", "gradius", "asuper"}));
        favourites.search(QString());
        QCOMPARE(m_staged->shownNames(), (QStringList{"pong", "nemesis", "gradius", "gradius", "asuper"}));
    }

    void hiddenOnesAreWrittenAndTakenToALaunch()
    {
        UCAppController& favourites = *m_staged->controller;
        const QByteArray before = m_staged->favourites.text().value();
        favourites.search(QStringLiteral("pong"));
        QCOMPARE(m_staged->favourites.text().value(), before);
        QCOMPARE(favourites.search_priorityOption(QStringLiteral("gradius")), QStringLiteral("-first"));
        // The one that is shown is the second of that name.
        favourites.search(QStringLiteral("\"gradius ii\""));
        QCOMPARE(m_staged->shownNames(), (QStringList{"gradius"}));
        QCOMPARE(favourites.search_priorityOption(QStringLiteral("gradius")), QStringLiteral("-first"));
        QCOMPARE(favourites.search_priorityOption(QStringLiteral("gone")), QString());
    }

    void onlyWhatIsShownIsRemovedAndComesBack()
    {
        UCAppController& favourites = *m_staged->controller;
        m_staged->table->selectAll();
        favourites.search(QStringLiteral("gradius"));
        m_staged->table->selectAll();
        m_staged->desktop.answerAlert(QStringLiteral("favorites_remove_message"), 0);
        favourites.removeFavoritesTable();
        QCOMPARE(m_staged->shownNames(), QStringList());
        QCOMPARE(m_staged->favourites.names(), (QStringList{"pong", "nemesis"}));
        m_staged->favourites.undoStack().undo();
        QCOMPARE(m_staged->shownNames(), (QStringList{"asuper", "gradius", "gradius"}));
        favourites.search(QString());
        QCOMPARE(m_staged->shownNames(), all);
    }

    void whatIsAddedOrEditedIsFound()
    {
        UCAppController& favourites = *m_staged->controller;
        favourites.search(QStringLiteral("bare"));
        QCOMPARE(m_staged->shownNames(), QStringList());
        favourites.addFavoritesTable(bare);
        QCOMPARE(m_staged->shownNames(), (QStringList{"bare"}));
        m_staged->favourites.setValue(0, FavouriteKey::Title, QStringLiteral("Zork"));
        favourites.search(QStringLiteral("zork"));
        QCOMPARE(m_staged->shownNames(), (QStringList{"pong"}));
    }

private:
    const QStringList all{"asuper", "gradius", "gradius", "nemesis", "pong"};
    std::unique_ptr<StagedFavourites> m_staged;
};

TESSERA_TEST(FavouritesSearchTest);
#include "favouritessearchtest.moc"
