#include "stagedfavourites.h"

#include "favourites/ui/playedcontroller.h"
#include "support/testmain.h"

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QSignalSpy>

using namespace tessera;
using namespace tessera::test;

class FavouritesTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<StagedFavourites>();
        m_staged->writeFile(entryText("pong", "Pong", "-cheat") + entryText("old", "Old")
                            + entryText("bare", "Bare", "-autosave"));
        m_staged->start();
    }
    void cleanup() { m_staged.reset(); }

    void theModelIsSound()
    {
        FavouritesTableModel* model = m_staged->controller->model();
        QAbstractItemModelTester tester(model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        for (int column = 0; column < FavouritesTableModel::columns; ++column) {
            m_staged->table->sortByColumn(column, Qt::DescendingOrder);
            m_staged->table->sortByColumn(column, Qt::AscendingOrder);
            m_staged->controller->addFavoritesTable(pong);
            m_staged->favourites.setValue(0, FavouriteKey::Title, QString::number(column));
            m_staged->favourites.remove({0, 1});
            m_staged->favourites.undoStack().undo();
            m_staged->played.note(QStringLiteral("pong"), m_staged->desktop.now());
            m_staged->controller->showRecentlyPlayed(true);
            m_staged->controller->showRecentlyPlayed(false);
        }
        QVERIFY(m_staged->favourites.open().has_value());
        QCOMPARE(model->rowCount(), 3);
    }

    void aPictureIsMadeOnceForAllRows()
    {
        const auto picture = [this](int row) {
            return m_staged->shown(row, FavouriteColumn::Name, Qt::DecorationRole).value<QIcon>();
        };
        // "bare" has a mark, "old" is not in the catalogue.
        QVERIFY(!picture(0).isNull() && !picture(1).isNull());
        QCOMPARE(picture(0).cacheKey(), picture(0).cacheKey());
        QCOMPARE(picture(1).cacheKey(), picture(1).cacheKey());
        QVERIFY(picture(0).cacheKey() != picture(1).cacheKey());
    }

    void theHeaderIsPlainAndOfItsHeight()
    {
        QCOMPARE(m_staged->table->horizontalHeader()->height(), 22);
        QCOMPARE(m_staged->table->horizontalHeader()->sortIndicatorSection(), 0);
        QCOMPARE(m_staged->table->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
    }

    void rowsFollowFontAndHeightSettings()
    {
        m_staged->controls.setText(keys::FavoritefontName, QStringLiteral("Noto Sans CJK JP"));
        m_staged->controls.setIndex(keys::fontSize, 20);
        m_staged->controls.setIndex(keys::rowHeight, 30);
        const QFont font = m_staged->shown(0, FavouriteColumn::Name, Qt::FontRole).value<QFont>();
        QCOMPARE(font.families().constFirst(), QStringLiteral("Noto Sans CJK JP"));
        QCOMPARE(font.pixelSize(), 20);
        QCOMPARE(m_staged->table->verticalHeader()->defaultSectionSize(), 30);
    }

    void sortingKeepsTheSelection()
    {
        m_staged->table->selectRow(2);
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("pong"));
        m_staged->table->sortByColumn(1, Qt::AscendingOrder);
        m_staged->table->sortByColumn(1, Qt::DescendingOrder);
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("pong"));
        QCOMPARE(m_staged->controller->selectedRecords().size(), std::size_t(1));
    }

    void whatFollowsTheSelectionFollowsANewFirstRow()
    {
        m_staged->favourites.setValue(1, FavouriteKey::Status, QStringLiteral("good"));
        m_staged->table->selectAll();
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("bare"));
        QSignalSpy changes(m_staged->controller.get(), &UCAppController::selectionChanged);
        QSignalSpy marks(m_staged->controller.get(), &UCAppController::markChanged);
        clickHeader(FavouriteColumn::Option);
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("old"));
        QCOMPARE(changes.count(), 1);
        QCOMPARE(marks.count(), 1);
        // The same one first: nothing to tell.
        m_staged->table->selectRow(2);
        changes.clear();
        clickHeader(FavouriteColumn::Name);
        QCOMPARE(changes.count(), 0);
    }

    void equalOnesKeepTheOrderThatWasShown()
    {
        clickHeader(FavouriteColumn::Name);
        QCOMPARE(m_staged->shownNames(), (QStringList{"pong", "old", "bare"}));
        clickHeader(FavouriteColumn::Maker);
        QCOMPARE(m_staged->shownNames(), (QStringList{"pong", "old", "bare"}));
        clickHeader(FavouriteColumn::Times);
        QCOMPARE(m_staged->shownNames(), (QStringList{"pong", "old", "bare"}));
    }

    void equalOnesKeepTheirOrderWhenThereIsOneMore()
    {
        m_staged->played.note(QStringLiteral("old"), m_staged->desktop.now());
        clickHeader(FavouriteColumn::Times);
        clickHeader(FavouriteColumn::Maker);
        QCOMPARE(m_staged->shownNames(), (QStringList{"bare", "pong", "old"}));
        m_staged->favourites.remove({0});
        m_staged->favourites.undoStack().undo();
        QCOMPARE(m_staged->shownNames(), (QStringList{"bare", "pong", "old"}));
    }

    void theFirstSortIsByTheColumnThatStandsFirst()
    {
        QHeaderView* header = m_staged->table->horizontalHeader();
        const int option = static_cast<int>(FavouriteColumn::Option);
        header->moveSection(header->visualIndex(option), 0);
        m_staged->controller->favorites_tableViewSort();
        QCOMPARE(header->sortIndicatorSection(), option);
        QCOMPARE(m_staged->shownNames(), (QStringList{"old", "bare", "pong"}));
    }

    void optionsAreSortedToo()
    {
        const int column = static_cast<int>(FavouriteColumn::Option);
        m_staged->table->sortByColumn(column, Qt::AscendingOrder);
        QCOMPARE(m_staged->shownNames(),
                 (QStringList{QStringLiteral("old"), QStringLiteral("bare"), QStringLiteral("pong")}));
        // The order stays when there is one more.
        m_staged->controller->addFavoritesTable(pong);
        QCOMPARE(m_staged->shownNames().constLast(), QStringLiteral("pong"));
        QCOMPARE(m_staged->shown(0, FavouriteColumn::Option).toString(), QString());
    }

    void aSetThatIsGoneIsMarked()
    {
        // bare, old, pong
        QCOMPARE(m_staged->shown(0, FavouriteColumn::Name, Qt::ToolTipRole).toString(),
                 QStringLiteral("bare · "));
        QCOMPARE(m_staged->shown(1, FavouriteColumn::Name, Qt::ToolTipRole).toString(),
                 QStringLiteral("favourite_gone"));
        QVERIFY(m_staged->shown(1, FavouriteColumn::Title, Qt::ForegroundRole)
                != m_staged->shown(2, FavouriteColumn::Title, Qt::ForegroundRole));
        // The catalogue changes under them.
        m_staged->catalogue.setValue(0, Field::Name, QStringLiteral("old"));
        QCOMPARE(gone(), (QStringList{QStringLiteral("pong")}));
        m_staged->catalogue.undoStack().undo();
        m_staged->catalogue.remove({0, 1});
        // Without a catalogue none is known to be gone.
        QCOMPARE(gone(), QStringList());
        m_staged->catalogue.undoStack().undo();
        QCOMPARE(gone(), (QStringList{QStringLiteral("old")}));
        m_staged->controller->addFavoritesTable(bare);
        QCOMPARE(gone(), (QStringList{QStringLiteral("old")}));
    }

    void whatWasPlayedIsShownAndSorted()
    {
        const QDateTime now = m_staged->desktop.now();
        m_staged->played.note(QStringLiteral("old"), now.addDays(-1));
        m_staged->played.note(QStringLiteral("pong"), now.addDays(-2));
        m_staged->played.note(QStringLiteral("pong"), now.addDays(-2));
        QCOMPARE(m_staged->shown(0, FavouriteColumn::Times).toString(), QString());
        QCOMPARE(m_staged->shown(2, FavouriteColumn::Times).toString(), QStringLiteral("2"));
        QCOMPARE(m_staged->shown(1, FavouriteColumn::Last).toString(),
                 QLocale().toString(now.addDays(-1), QLocale::ShortFormat));
        m_staged->table->sortByColumn(static_cast<int>(FavouriteColumn::Times), Qt::DescendingOrder);
        QCOMPARE(m_staged->shownNames(),
                 (QStringList{QStringLiteral("pong"), QStringLiteral("old"), QStringLiteral("bare")}));
        m_staged->table->sortByColumn(static_cast<int>(FavouriteColumn::Last), Qt::DescendingOrder);
        QCOMPARE(m_staged->shownNames().constFirst(), QStringLiteral("old"));
        // It is nobody's to edit.
        const QModelIndex times
            = m_staged->controller->model()->index(0, static_cast<int>(FavouriteColumn::Times));
        QVERIFY(!times.flags().testFlag(Qt::ItemIsEditable));
        QVERIFY(!m_staged->controller->model()->setData(times, QStringLiteral("9"), Qt::EditRole));
    }

    void recentlyPlayedOnesAreShownAlone()
    {
        const QDateTime now = m_staged->desktop.now();
        m_staged->played.note(QStringLiteral("old"), now.addDays(-31));
        m_staged->played.note(QStringLiteral("pong"), now.addDays(-29));
        m_staged->table->selectRow(2);
        m_staged->controller->showRecentlyPlayed(true);
        QCOMPARE(m_staged->shownNames(), QStringList{QStringLiteral("pong")});
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("pong"));
        m_staged->played.note(QStringLiteral("bare"), now);
        QCOMPARE(m_staged->shownNames().size(), 2);
        // Lookups see what is arranged.
        QCOMPARE(m_staged->controller->search_priorityOption(QStringLiteral("pong")),
                 QStringLiteral("-cheat"));
        m_staged->controller->showRecentlyPlayed(false);
        QCOMPARE(m_staged->shownNames().size(), 3);
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("pong"));
    }

    void playingIsNotedUnlessThatIsOff()
    {
        PlayedController notes(m_staged->played, m_staged->desktop, m_staged->controls);
        notes.open();
        notes.notePlayed(QStringLiteral("pong"));
        notes.notePlayed(QStringLiteral("/roms/pong.zip"));
        notes.notePlayed(QString());
        QCOMPARE(m_staged->played.played(QStringLiteral("pong"))->times, quint64(2));
        QCOMPARE(m_staged->played.played(QStringLiteral("pong"))->last, m_staged->desktop.now());
        QVERIFY(bytesOf(m_staged->played.path()).contains("pong"));
        m_staged->defaults.setValue(keys::PlayedIsOff.name, true);
        notes.notePlayed(QStringLiteral("pong"));
        QCOMPARE(m_staged->played.played(QStringLiteral("pong"))->times, quint64(2));
    }

    void forgettingWhatWasPlayedAsksFirst()
    {
        PlayedController notes(m_staged->played, m_staged->desktop, m_staged->controls);
        notes.clearPlayed();
        notes.notePlayed(QStringLiteral("pong"));
        m_staged->desktop.answerAlert(QStringLiteral("played_clear_message"), 1);
        notes.clearPlayed();
        QVERIFY(!m_staged->played.isEmpty());
        m_staged->desktop.answerAlert(QStringLiteral("played_clear_message"), 0);
        notes.clearPlayed();
        QVERIFY(m_staged->played.isEmpty());
        QVERIFY(!bytesOf(m_staged->played.path()).contains("pong"));
    }

private:
    void clickHeader(FavouriteColumn column)
    {
        QHeaderView* header = m_staged->table->horizontalHeader();
        const int section = static_cast<int>(column);
        for (int i = 0; i < header->count(); ++i)
            header->resizeSection(i, 50);
        header->showSection(section);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(header->sectionViewportPosition(section) + 25, header->height() / 2));
        QCOMPARE(header->sortIndicatorSection(), section);
    }

    QStringList gone() const
    {
        QStringList names;
        for (int row = 0; row < m_staged->controller->model()->rowCount(); ++row) {
            if (m_staged->shown(row, FavouriteColumn::Name, Qt::ToolTipRole).toString()
                == QStringLiteral("favourite_gone"))
                names << m_staged->shown(row, FavouriteColumn::Name).toString();
        }
        return names;
    }

    std::unique_ptr<StagedFavourites> m_staged;
};

TESSERA_TEST(FavouritesTableTest);
#include "favouritestabletest.moc"
