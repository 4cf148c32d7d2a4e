#include "stagedfavourites.h"

#include "catalogue/romfolders.h"
#include "favourites/ui/playedcontroller.h"
#include "support/testmain.h"
#include "widgets/theme.h"

#include <QSignalSpy>

using namespace tessera;
using namespace tessera::test;

namespace {

using Indexes = std::vector<std::uint32_t>;

} // namespace

/// Which favourites are shown, in which order, and which of them are selected.
class FavouritesShownTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<StagedFavourites>();
        m_staged->writeFile(entryText("c", "A") + entryText("b", "C") + entryText("a", "B"));
    }
    void cleanup() { m_staged.reset(); }

    void beforeThereIsATableTheyAreSortedByName()
    {
        m_staged->startUnseen();
        QCOMPARE(m_staged->shownNames(), (QStringList{"a", "b", "c"}));
    }

    void theFirstOfSeveralIsTheUppermost_data()
    {
        QTest::addColumn<bool>("isSeen");
        QTest::newRow("in the table") << true;
        QTest::newRow("before there is one") << false;
    }

    void theFirstOfSeveralIsTheUppermost()
    {
        QFETCH(bool, isSeen);
        m_staged->startUnseen();
        if (isSeen)
            m_staged->showTable();
        UCAppController& favourites = *m_staged->controller;
        // "a" is the file's third, and the first row.
        favourites.selectRecords({0, 2});
        QCOMPARE(favourites.firstRow(), 0);
        QCOMPARE(favourites.firstSelected(), std::optional<std::uint32_t>(2));
        QCOMPARE(favourites.selectedRecords(), (Indexes{2, 0}));
        favourites.selectRecords({2, 0});
        QCOMPARE(favourites.firstRow(), 0);
        QCOMPARE(favourites.selectedRecords(), (Indexes{2, 0}));
        favourites.selectRecords({0, 1, 77});
        QCOMPARE(favourites.firstRow(), 1);
        QCOMPARE(favourites.selectedRecords(), (Indexes{1, 0}));
        favourites.selectRecords({});
        QCOMPARE(favourites.firstRow(), -1);
        QVERIFY(!favourites.firstSelected());
        QVERIFY(favourites.selectedRecords().empty());
        for (const int row : {0, 2}) {
            favourites.selectRow(row);
            QCOMPARE(favourites.firstRow(), row);
            QCOMPARE(favourites.selectedRecords().size(), std::size_t(1));
        }
        // Behind the last one there is the last one, before the first one nothing.
        favourites.selectRow(3);
        QCOMPARE(favourites.firstRow(), 2);
        favourites.selectRow(-1);
        QCOMPARE(favourites.firstRow(), 2);
    }

    void aSelectedRowIsBroughtIntoView()
    {
        QByteArray many;
        for (int i = 100; i < 300; ++i)
            many += entryText(QByteArray::number(i), "x");
        m_staged->writeFile(many);
        m_staged->start();
        m_staged->controller->selectRow(150);
        const QRect row = m_staged->table->visualRect(m_staged->controller->model()->index(150, 0));
        QVERIFY(m_staged->table->viewport()->rect().contains(row.center()));
        QVERIFY(qAbs(row.center().y() - m_staged->table->viewport()->height() / 2) < 2 * row.height());
        QCOMPARE(m_staged->table->currentIndex().row(), 150);
    }

    void whatIsPlayedMovesInItsOrderAtOnce()
    {
        m_staged->start();
        const QDateTime now = m_staged->desktop.now();
        m_staged->table->sortByColumn(static_cast<int>(FavouriteColumn::Times), Qt::DescendingOrder);
        m_staged->played.note(QStringLiteral("b"), now);
        QCOMPARE(m_staged->shownNames().constFirst(), QStringLiteral("b"));
        m_staged->played.note(QStringLiteral("c"), now);
        m_staged->played.note(QStringLiteral("c"), now);
        QCOMPARE(m_staged->shownNames().constFirst(), QStringLiteral("c"));
        m_staged->table->sortByColumn(static_cast<int>(FavouriteColumn::Last), Qt::DescendingOrder);
        m_staged->played.note(QStringLiteral("a"), now.addSecs(5));
        QCOMPARE(m_staged->shownNames().constFirst(), QStringLiteral("a"));
    }

    void whatWasPlayedThirtyDaysAgoIsRecent()
    {
        m_staged->start();
        const QDateTime now = m_staged->desktop.now();
        m_staged->played.note(QStringLiteral("a"), now.addDays(-30));
        m_staged->played.note(QStringLiteral("b"), now.addDays(-30).addSecs(-1));
        m_staged->controller->showRecentlyPlayed(true);
        QCOMPARE(m_staged->shownNames(), QStringList{"a"});
    }

    void theChipIsToldOfOnce()
    {
        m_staged->start();
        m_staged->played.note(QStringLiteral("a"), m_staged->desktop.now());
        m_staged->played.note(QStringLiteral("c"), m_staged->desktop.now());
        m_staged->table->selectRow(1);
        QSignalSpy counts(m_staged->controller.get(), &UCAppController::countChanged);
        QSignalSpy selections(m_staged->controller.get(), &UCAppController::selectionChanged);
        m_staged->controller->showRecentlyPlayed(false);
        QCOMPARE(counts.size(), 0);
        m_staged->controller->showRecentlyPlayed(true);
        QCOMPARE(counts.size(), 1);
        QCOMPARE(selections.size(), 1);
        // What was selected is not shown any more.
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QString());
        m_staged->controller->showRecentlyPlayed(true);
        QCOMPARE(counts.size(), 1);
        m_staged->played.note(QStringLiteral("b"), m_staged->desktop.now());
        QCOMPARE(counts.size(), 2);
        m_staged->controller->showRecentlyPlayed(false);
        QCOMPARE(counts.size(), 3);
        QCOMPARE(m_staged->shownNames().size(), 3);
        m_staged->played.note(QStringLiteral("b"), m_staged->desktop.now());
        QCOMPARE(counts.size(), 3);
    }

    void anotherListIsToldOfOnce()
    {
        m_staged->start();
        m_staged->table->selectRow(1);
        QSignalSpy counts(m_staged->controller.get(), &UCAppController::countChanged);
        QSignalSpy selections(m_staged->controller.get(), &UCAppController::selectionChanged);
        m_staged->favourites.append(pong);
        QCOMPARE(counts.size(), 1);
        QCOMPARE(selections.size(), 1);
        m_staged->favourites.remove({1});
        QCOMPARE(counts.size(), 2);
        QCOMPARE(selections.size(), 2);
        m_staged->favourites.undoStack().undo();
        QCOMPARE(counts.size(), 3);
        QCOMPARE(m_staged->controller->selectedRecords(), Indexes{1});
    }

    void behindTheLastOneTheNewLastIsSelected()
    {
        m_staged->start();
        m_staged->table->selectRow(2);
        m_staged->favourites.remove({0});
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("b"));
        m_staged->favourites.remove({0, 1});
        QCOMPARE(m_staged->controller->firstRow(), -1);
    }

    void whatIsLeftOfASelectionStaysSelected()
    {
        m_staged->start();
        m_staged->table->selectAll();
        m_staged->favourites.remove({1});
        QCOMPARE(m_staged->shownNames(), (QStringList{"a", "c"}));
        QCOMPARE(m_staged->controller->selectedRecords(), (Indexes{1, 0}));
        m_staged->table->selectRow(1);
        m_staged->favourites.remove({1});
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("c"));
        QCOMPARE(m_staged->controller->selectedRecords(), Indexes{0});
    }

    void onlyATextThatDiffersIsAnEdit()
    {
        m_staged->start();
        FavouritesTableModel* model = m_staged->controller->model();
        const QModelIndex title = model->index(0, static_cast<int>(FavouriteColumn::Title));
        QVERIFY(!model->setData(title, QStringLiteral("B"), Qt::EditRole));
        QVERIFY(!model->setData(title, QStringLiteral("x"), Qt::DisplayRole));
        QVERIFY(!model->setData(QModelIndex(), QStringLiteral("x"), Qt::EditRole));
        QCOMPARE(m_staged->favourites.undoStack().count(), 0);
        QVERIFY(model->setData(title, QStringLiteral("x"), Qt::EditRole));
        QCOMPARE(m_staged->favourites.value(2, FavouriteKey::Title), QStringLiteral("x"));
    }

    void whatAColumnShowsIsItsOwn()
    {
        m_staged->controller.reset();
        m_staged->start();
        m_staged->controller->addFavoritesTable(pong);
        m_staged->favourites.setValue(3, FavouriteKey::Option, QStringLiteral("-cheat"));
        m_staged->played.note(QStringLiteral("pong"), m_staged->desktop.now());
        const FavouritesTableModel* model = m_staged->controller->model();
        QStringList shown;
        QStringList edited;
        for (int column = 0; column < FavouritesTableModel::columns; ++column) {
            shown << model->index(3, column).data().toString();
            edited << model->index(3, column).data(Qt::EditRole).toString();
            QCOMPARE(model->index(3, column).flags().testFlag(Qt::ItemIsEditable), column < 10);
            const bool isName = column == 0;
            for (const int role :
                 {int{Qt::DecorationRole}, int{Qt::ToolTipRole}, int{Qt::AccessibleDescriptionRole}})
                QCOMPARE(model->index(3, column).data(role).isValid(), isName);
        }
        const QString last = QLocale().toString(m_staged->desktop.now(), QLocale::ShortFormat);
        QCOMPARE(edited,
                 (QStringList{"pong", "Pong", QString::fromUtf8("ポン"), "1972", "Atari", "-cheat", "pong",
                              "", "good", "game", "1", last}));
        // As the game list shows it.
        shown[9] = edited[9];
        QCOMPARE(shown, edited);
        QCOMPARE(model->index(3, 0).data(Qt::AccessibleDescriptionRole).toString(),
                 QStringLiteral("pong · good"));
        QCOMPARE(model->columnCount(model->index(0, 0)), 0);
        QCOMPARE(model->flags(QModelIndex()), Qt::ItemFlags(Qt::NoItemFlags));
        QVERIFY(!model->data(QModelIndex(), Qt::DisplayRole).isValid());
        QVERIFY(!model->index(3, 0).data(Qt::CheckStateRole).isValid());
    }

    void aSetWithoutAnArchiveIsPaler()
    {
        m_staged->start();
        m_staged->controller->addFavoritesTable(pong);
        m_staged->controller->addFavoritesTable(bare);
        QVERIFY(QDir().mkpath(m_staged->path(QStringLiteral("roms"))));
        QVERIFY(writeBytes(m_staged->path(QStringLiteral("roms/pong.zip")), "x"));
        m_staged->controls.setText(keys::RomsPath, m_staged->path(QStringLiteral("roms")));
        m_staged->controls.setText(keys::GamelistColoring, QStringLiteral("true"));
        m_staged->controls.setText(keys::TableViewTextColor, QStringLiteral("#ff112233"));
        m_staged->controls.setText(keys::TableViewTextColor2, QStringLiteral("#80445566"));
        const auto colorOf = [this](const char* name) {
            const auto row = static_cast<int>(m_staged->shownNames().indexOf(QString::fromLatin1(name)));
            return m_staged->shown(row, FavouriteColumn::Name, Qt::ForegroundRole).value<QColor>();
        };
        QCOMPARE(colorOf("pong").rgba(), 0xff112233);
        QCOMPARE(colorOf("bare").rgba(), 0x80445566);
        QCOMPARE(colorOf("a"), theme::color("faint"));
        // As the folder was read, whatever is in it now.
        QVERIFY(QFile::remove(m_staged->path(QStringLiteral("roms/pong.zip"))));
        QSignalSpy changed(m_staged->controller->model(), &QAbstractItemModel::dataChanged);
        m_staged->controller->setRomFolders(
            std::make_shared<const RomFolders>(m_staged->path(QStringLiteral("roms")), QStringList()));
        QVERIFY(!changed.isEmpty());
        QCOMPARE(colorOf("pong").rgba(), 0x80445566);
    }

    void theMarkTellsTheStatusAndWhatIsGone()
    {
        m_staged->start();
        m_staged->controller->addFavoritesTable(pong);
        m_staged->controller->addFavoritesTable(bare);
        const auto markOf = [this](const char* name) {
            const auto row = static_cast<int>(m_staged->shownNames().indexOf(QString::fromLatin1(name)));
            return m_staged->shown(row, FavouriteColumn::Name, Qt::DecorationRole).value<QIcon>().cacheKey();
        };
        QCOMPARE(markOf("a"), theme::icon(QStringLiteral("warning"), "imperfect").cacheKey());
        QCOMPARE(markOf("pong"), theme::mark(QStringLiteral("plovermark_good")).cacheKey());
        QCOMPARE(markOf("bare"), theme::mark(QStringLiteral("plovermark_none")).cacheKey());
        // Another catalogue: pong is not in it.
        QVERIFY(writeStore(m_staged->catalogue.path(), std::array{bare}).has_value());
        QVERIFY(m_staged->catalogue.open().has_value());
        QCOMPARE(markOf("pong"), theme::icon(QStringLiteral("warning"), "imperfect").cacheKey());
    }

    void unsavedOnesAreKeptBesideTheFile()
    {
        m_staged->start();
        QCOMPARE(m_staged->controller->keepUnsaved().value(), QString());
        m_staged->favourites.setValue(0, FavouriteKey::Title, QStringLiteral("Edited"));
        const QByteArray before = m_staged->file();
        const QString kept = m_staged->controller->keepUnsaved().value();
        QCOMPARE(QFileInfo(kept).fileName(),
                 QStringLiteral("jp.Plover.Tessera_Favorites 2026-01-02 03-04-05.xml"));
        QCOMPARE(QFileInfo(kept).path(), QFileInfo(m_staged->favourites.path()).path());
        QVERIFY(bytesOf(kept).contains("Edited"));
        QCOMPARE(m_staged->file(), before);
        // Nor does one take the place of another.
        QVERIFY(m_staged->controller->keepUnsaved().value() != kept);
    }

    void unsavedOnesAreKeptWhereThereIsNoFolderYet()
    {
        QVERIFY(QDir(m_staged->path(QStringLiteral("support"))).removeRecursively());
        m_staged->start();
        m_staged->controller->addFavoritesTable(pong);
        const auto kept = m_staged->controller->keepUnsaved();
        QVERIFY(kept.has_value());
        QVERIFY(bytesOf(*kept).contains("pong"));
    }

    void unsavedOnesThatCannotBeKeptHaveAReason()
    {
        QVERIFY(QDir(m_staged->path(QStringLiteral("support"))).removeRecursively());
        QVERIFY(writeBytes(m_staged->path(QStringLiteral("support")), "a file"));
        m_staged->start();
        m_staged->controller->addFavoritesTable(pong);
        QVERIFY(!m_staged->controller->keepUnsaved());
    }

    void aLocalFileIsPlayedUnderItsName()
    {
        PlayedController notes(m_staged->played, m_staged->desktop, m_staged->controls);
        notes.notePlayed(QStringLiteral("/roms/a.b.zip"));
        QVERIFY(m_staged->played.played(QStringLiteral("a.b")).has_value());
        notes.notePlayed(QStringLiteral("c.zip"));
        QVERIFY(m_staged->played.played(QStringLiteral("c.zip")).has_value());
        QCOMPARE(QFileInfo(m_staged->played.path()).fileName(),
                 QStringLiteral("jp.Plover.Tessera_Played.xml"));
    }

    void whatWasPlayedIsReadAndFailuresAreLogged()
    {
        QVERIFY(QDir().mkpath(QFileInfo(m_staged->played.path()).path()));
        QVERIFY(writeBytes(m_staged->played.path(), "broken"));
        PlayedController notes(m_staged->played, m_staged->desktop, m_staged->controls);
        notes.open();
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{"log failure_plist_malformed"});
        QVERIFY(QFile::remove(m_staged->played.path()));
        QVERIFY(QDir().mkpath(m_staged->played.path()));
        notes.notePlayed(QStringLiteral("pong"));
        QCOMPARE(m_staged->desktop.takeTranscript(), QStringList{"log failure_write"});
    }

private:
    std::unique_ptr<StagedFavourites> m_staged;
};

TESSERA_TEST(FavouritesShownTest);
#include "favouritesshowntest.moc"
