#include "favourites/favouriteorder.h"

#include "favourites/favourites.h"
#include "favourites/playedgames.h"

#include "favouritetexts.h"
#include "support/testmain.h"

#include <QTemporaryDir>

using namespace tessera;
using namespace tessera::test;

/// What favourites are sorted by besides the attributes of their games.
class FavouriteOrderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theyStandAsTheirFileHasThem()
    {
        open(entryText("b", "B") + entryText("a", "A") + entryText("c", "C"));
        QCOMPARE(numbers(FavouriteOrder::AsTheyStand), (std::vector<std::uint64_t>{0, 1, 2}));
    }

    void optionsSortAsTextsAndNoneGoFirst()
    {
        open(entryText("a", "A", "-video") + entryText("b", "B") + entryText("c", "C", "-cheat")
             + entryText("d", "D", "-video"));
        const auto order = numbers(FavouriteOrder::Option);
        QVERIFY(order[1] < order[2]);
        QVERIFY(order[2] < order[0]);
        QCOMPARE(order[0], order[3]);
    }

    void timesSortAsNumbersAndNeverGoesFirst()
    {
        open(entryText("a", "A") + entryText("never", "N") + entryText("b", "B") + entryText("a", "Again"));
        for (int i = 0; i < 12; ++i)
            m_played->note(QStringLiteral("a"), m_now);
        m_played->note(QStringLiteral("b"), m_now);
        QCOMPARE(numbers(FavouriteOrder::Times), (std::vector<std::uint64_t>{12, 0, 1, 12}));
    }

    void theLastTimeSortsBySecondsAndNeverGoesFirst()
    {
        open(entryText("new", "N") + entryText("never", "N") + entryText("undated", "U")
             + entryText("old", "O") + entryText("first", "F") + entryText("second", "S"));
        const QDateTime zero = QDateTime::fromSecsSinceEpoch(0, Qt::UTC);
        m_played->note(QStringLiteral("new"), m_now);
        m_played->note(QStringLiteral("undated"), QDateTime());
        // A clock that was never set.
        m_played->note(QStringLiteral("old"), zero.addYears(-10));
        m_played->note(QStringLiteral("first"), zero.addSecs(1));
        m_played->note(QStringLiteral("second"), zero.addSecs(2));
        const auto order = numbers(FavouriteOrder::Last);
        QCOMPARE(order[1], std::uint64_t(0));
        QCOMPARE(order[2], std::uint64_t(0));
        QVERIFY(order[1] < order[3]);
        QVERIFY(order[3] <= order[4]);
        QVERIFY(order[4] < order[5]);
        QVERIFY(order[5] < order[0]);
    }

    void ofNoneThereIsNoOrder()
    {
        for (const FavouriteOrder order : {FavouriteOrder::AsTheyStand, FavouriteOrder::Option,
                                           FavouriteOrder::Times, FavouriteOrder::Last})
            QVERIFY(numbers(order).empty());
    }

    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_favourites = std::make_unique<Favourites>(m_folder->filePath(QStringLiteral("f.xml")));
        m_played = std::make_unique<PlayedGames>(m_folder->filePath(QStringLiteral("p.xml")));
    }

private:
    void open(const QByteArray& values)
    {
        QVERIFY(writeBytes(m_favourites->path(), listFile(values)));
        QVERIFY(m_favourites->open() == Favourites::Opened::List);
    }

    std::vector<std::uint64_t> numbers(FavouriteOrder order) const
    {
        return orderNumbers(*m_favourites, *m_played, order);
    }

    const QDateTime m_now{QDate(2026, 1, 5), QTime(20, 30), Qt::UTC};
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Favourites> m_favourites;
    std::unique_ptr<PlayedGames> m_played;
};

TESSERA_TEST(FavouriteOrderTest);
#include "favouriteordertest.moc"
