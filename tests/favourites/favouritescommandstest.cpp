#include "stagedfavourites.h"

#include "support/installedtexts.h"
#include "support/testmain.h"

#include <QHeaderView>
#include <QSignalSpy>

using namespace tessera;
using namespace tessera::test;

namespace {

QStringList list(std::initializer_list<const char*> texts)
{
    QStringList strings;
    for (const char* text : texts)
        strings << QString::fromUtf8(text);
    return strings;
}

// In a file's order, which is not that of their names.
const QByteArray threeEntries = entryText("b", "B", "-cheat") + entryText("c", "C") + entryText("a", "A");

} // namespace

class FavouritesCommandsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_staged = std::make_unique<StagedFavourites>(); }
    void cleanup() { m_staged.reset(); }

    void aFirstRunLogsThatThereIsNoFile()
    {
        m_staged->start();
        QCOMPARE(m_staged->desktop.transcript(), list({"log Favorites.xml file not found."}));
        QCOMPARE(m_staged->controller->model()->rowCount(), 0);
        QVERIFY(!m_staged->controller->favoritesUpdate());
    }

    void addingOneAndQuittingMakesFolderAndFile()
    {
        m_staged->start();
        m_staged->games.selectGame(QStringLiteral("pong"));
        m_staged->desktop.takeTranscript();
        m_staged->controller->addFavorite();
        QCOMPARE(m_staged->desktop.transcript(), list({"sound shutter"}));
        QVERIFY(m_staged->controller->favoritesUpdate());
        QVERIFY(!QFile::exists(m_staged->favourites.path()));
        m_staged->controller->saveFavorites();
        QVERIFY(m_staged->file().contains("<string>ポン</string>"));
        QCOMPARE(m_staged->controller->pathOfDataFile(), m_staged->favourites.path());
        // It stays set: another quit writes again.
        QVERIFY(m_staged->controller->favoritesUpdate());
    }

    void addingWithNothingSelectedBeeps()
    {
        m_staged->start();
        m_staged->desktop.takeTranscript();
        m_staged->controller->addFavorite();
        QCOMPARE(m_staged->desktop.transcript(), list({"beep"}));
        QCOMPARE(m_staged->controller->model()->rowCount(), 0);
        QVERIFY(!m_staged->controller->favoritesUpdate());
    }

    void addingTwiceGivesTwoAndKeepsTheSelection()
    {
        m_staged->writeFile(threeEntries);
        m_staged->start();
        m_staged->games.selectGame(QStringLiteral("pong"));
        const QString before = m_staged->controller->tableViewSelectionROM2();
        m_staged->controller->addFavorite();
        m_staged->controller->addFavorite();
        QCOMPARE(m_staged->shownNames(), list({"a", "b", "c", "pong", "pong"}));
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), before);
    }

    void quittingWithoutAChangeStoresTheSelectionOnly()
    {
        m_staged->writeFile(threeEntries);
        m_staged->start();
        m_staged->table->selectRow(2);
        // A rewrite would put it in our own form.
        const QByteArray spaced = m_staged->file() + "\n\n";
        QVERIFY(writeBytes(m_staged->favourites.path(), spaced));
        m_staged->controller->saveFavorites();
        QCOMPARE(m_staged->file(), spaced);
        QCOMPARE(m_staged->storedSelection().toInt(), 2);
    }

    void nothingSelectedStoresNoRow()
    {
        m_staged->writeFile(threeEntries);
        m_staged->start();
        m_staged->table->clearSelection();
        m_staged->controller->saveFavorites();
        QCOMPARE(m_staged->storedSelection().toInt(), -1);
        m_staged->controller->set_favorites();
        QCOMPARE(m_staged->controller->firstRow(), -1);
    }

    void anEditAloneIsNotWrittenAtQuit()
    {
        m_staged->writeFile(threeEntries);
        m_staged->start();
        QSignalSpy unsaved(m_staged->controller.get(), &UCAppController::unsavedChanged);
        QVERIFY(m_staged->controller->model()->setData(m_staged->controller->model()->index(0, 1),
                                                       QStringLiteral("Edited"), Qt::EditRole));
        QCOMPARE(unsaved.size(), 1);
        QVERIFY(unsaved[0][0].toBool());
        QVERIFY(!m_staged->controller->favoritesUpdate());
        m_staged->controller->saveFavorites();
        QVERIFY(!m_staged->file().contains("Edited"));
    }

    void saveFavouritesWritesAnEditAtOnce()
    {
        m_staged->writeFile(threeEntries);
        m_staged->start();
        m_staged->favourites.setValue(1, FavouriteKey::Option, QStringLiteral("-autosave"));
        QSignalSpy unsaved(m_staged->controller.get(), &UCAppController::unsavedChanged);
        QSignalSpy said(m_staged->controller.get(), &UCAppController::statusMessage);
        m_staged->controller->saveFavouritesNow();
        QVERIFY(m_staged->controller->favoritesUpdate());
        QVERIFY(m_staged->file().contains("<string>-autosave</string>"));
        QCOMPARE(unsaved.size(), 1);
        QVERIFY(!unsaved[0][0].toBool());
        QCOMPARE(said.size(), 1);
    }

    void saveFavouritesTellsWhenItCannot()
    {
        m_staged->writeFile(threeEntries);
        m_staged->start();
        QVERIFY(QFile::remove(m_staged->favourites.path()));
        QVERIFY(QDir().mkpath(m_staged->favourites.path()));
        m_staged->desktop.answerError(QStringLiteral("failure_write"));
        m_staged->controller->saveFavouritesNow();
        // At quit nobody is asked.
        m_staged->desktop.takeTranscript();
        m_staged->controller->saveFavorites();
        QCOMPARE(m_staged->desktop.transcript(), list({"log save error: failure_write"}));
    }

    void aFolderThatCannotBeMadeIsLogged_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("Japanese") << QStringLiteral("ja");
        QTest::newRow("English") << QStringLiteral("en");
    }
    void aFolderThatCannotBeMadeIsLogged()
    {
        QFETCH(QString, language);
        const InstalledTexts texts(language);
        QVERIFY(writeBytes(m_staged->path(QStringLiteral("support")), "a file"));
        m_staged->start();
        m_staged->games.selectGame(QStringLiteral("pong"));
        m_staged->controller->addFavorite();
        m_staged->desktop.takeTranscript();
        m_staged->controller->saveFavorites();
        const QString line = QStringLiteral("log ディレクトリ作成でエラー発生: ")
            + m_staged->path(QStringLiteral("support/Plover.Tessera")) + QStringLiteral(": ");
        QCOMPARE(m_staged->desktop.transcript().size(), 2);
        QVERIFY(m_staged->desktop.transcript().constFirst().startsWith(line));
        const QString saveLine = m_staged->desktop.transcript().constLast();
        QVERIFY2(saveLine.startsWith(QStringLiteral("log save error: "))
                     && saveLine.contains(m_staged->path(QStringLiteral("support/Plover.Tessera"))),
                 qPrintable(saveLine));
        QVERIFY(m_staged->desktop.transcript().constFirst().size() > line.size());
    }

    void whatCannotBeLoadedIsLogged_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("line");
        QTest::newRow("an empty list") << listFile("") << QStringLiteral("log Data load error: (null)");
        QTest::newRow("a broken file")
            << QByteArray("broken") << QStringLiteral("log Data load error: failure_plist_malformed");
    }
    void whatCannotBeLoadedIsLogged()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, line);
        m_staged->writeFile("");
        QVERIFY(writeBytes(m_staged->favourites.path(), bytes));
        m_staged->start();
        QCOMPARE(m_staged->desktop.transcript(), QStringList{line});
        QCOMPARE(m_staged->controller->model()->rowCount(), 0);
        // Later, the list stays as it was.
        m_staged->games.selectGame(QStringLiteral("pong"));
        m_staged->controller->addFavorite();
        m_staged->controller->set_favorites();
        QCOMPARE(m_staged->controller->model()->rowCount(), 1);
        QVERIFY(m_staged->controller->favoritesUpdate());
    }

    void theStoredRowIsCountedInTheFilesOrder()
    {
        m_staged->writeFile(threeEntries);
        m_staged->defaults.setValue(keys::FavoriteTable.name, 1);
        m_staged->start();
        QCOMPARE(m_staged->shownNames(), list({"a", "b", "c"}));
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("c"));
        QCOMPARE(m_staged->controller->selectedRecords().size(), std::size_t(1));
        // Once sorted, in the order that is shown.
        m_staged->controller->set_favorites();
        QCOMPARE(m_staged->shownNames(), list({"a", "b", "c"}));
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("b"));
    }

    void aStoredRowThatIsNotThereSelectsNothing_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QString>("selected");
        QTest::newRow("none stored") << QVariant() << QStringLiteral("b");
        QTest::newRow("no number") << QVariant(QStringLiteral("x")) << QStringLiteral("b");
        QTest::newRow("last") << QVariant(2) << QStringLiteral("a");
        QTest::newRow("behind the last") << QVariant(3) << QString();
        QTest::newRow("nothing was selected") << QVariant(-1) << QString();
        QTest::newRow("not found, elsewhere") << QVariant(std::numeric_limits<qlonglong>::max()) << QString();
        QTest::newRow("far below") << QVariant(std::numeric_limits<qlonglong>::min()) << QString();
    }
    void aStoredRowThatIsNotThereSelectsNothing()
    {
        QFETCH(QVariant, stored);
        QFETCH(QString, selected);
        m_staged->writeFile(threeEntries);
        if (stored.isValid())
            m_staged->defaults.setValue(keys::FavoriteTable.name, stored);
        m_staged->start();
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), selected);
    }

    void whatIsSelectedIsKnownBeforeTheWindowIsMade()
    {
        m_staged->writeFile(threeEntries);
        m_staged->defaults.setValue(keys::FavoriteTable.name, 1);
        m_staged->startUnseen();
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("c"));
        m_staged->games.selectGame(QStringLiteral("pong"));
        m_staged->controller->addFavorite();
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("c"));
        m_staged->controller->saveFavorites();
        QCOMPARE(m_staged->storedSelection().toInt(), 2);
        m_staged->showTable();
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("c"));
        QCOMPARE(m_staged->controller->selectedRecords().size(), std::size_t(1));
    }

    void aRandomFavouriteNeedsNoWindow()
    {
        m_staged->writeFile(threeEntries);
        m_staged->startUnseen();
        m_staged->controller->gameShuffle2();
        const QString drawn = m_staged->controller->tableViewSelectionROM2();
        QVERIFY(!drawn.isEmpty());
        m_staged->showTable();
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), drawn);
    }

    void theFileKeepsTheContentsOrder()
    {
        m_staged->writeFile(threeEntries);
        m_staged->start();
        m_staged->table->sortByColumn(1, Qt::DescendingOrder);
        m_staged->controller->saveFavouritesNow();
        QCOMPARE(m_staged->file(), listFile(threeEntries));
    }

    void removingBeepsWithNothingSelectedToo()
    {
        m_staged->writeFile(threeEntries);
        m_staged->start();
        m_staged->table->clearSelection();
        m_staged->desktop.takeTranscript();
        m_staged->controller->removeFavoritesTable();
        QCOMPARE(m_staged->desktop.transcript(), list({"beep"}));
        QVERIFY(!m_staged->controller->favoritesUpdate());
    }

    void removingAsksFirst()
    {
        m_staged->writeFile(threeEntries);
        m_staged->start();
        m_staged->table->selectRow(1);
        m_staged->desktop.takeTranscript();
        m_staged->desktop.answerAlert(QStringLiteral("favorites_remove_message"), 0);
        m_staged->controller->removeFavoritesTable();
        QCOMPARE(m_staged->desktop.transcript(), list({"beep", "alert favorites_remove_message"}));
        const Alert& alert = m_staged->desktop.alerts.back();
        QCOMPARE(alert.informative, QStringLiteral("favorites_remove_info"));
        QCOMPARE(alert.buttons, list({"remove", "cancel"}));
        QVERIFY(alert.style == Alert::Style::Warning);
        QCOMPARE(m_staged->shownNames(), list({"a", "c"}));
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("c"));
        m_staged->controller->saveFavorites();
        QCOMPARE(m_staged->file(), listFile(entryText("c", "C") + entryText("a", "A")));
    }

    void removingTakesTheRowsThatAreSelected()
    {
        m_staged->writeFile(threeEntries);
        m_staged->start();
        m_staged->table->sortByColumn(0, Qt::DescendingOrder);
        m_staged->table->selectRow(0);
        m_staged->table->selectionModel()->select(m_staged->controller->model()->index(2, 0),
                                                  QItemSelectionModel::Select | QItemSelectionModel::Rows);
        m_staged->desktop.answerAlert(QStringLiteral("favorites_remove_message"), 0);
        m_staged->controller->removeFavoritesTable();
        QCOMPARE(m_staged->shownNames(), list({"b"}));
        m_staged->favourites.undoStack().undo();
        QCOMPARE(m_staged->shownNames(), list({"c", "b", "a"}));
        QCOMPARE(m_staged->controller->selectedRecords(), (std::vector<std::uint32_t>{1, 2}));
        m_staged->controller->saveFavorites();
        QCOMPARE(m_staged->file(), listFile(threeEntries));
    }

    void takingAnAddedOneBackLeavesTheSelection()
    {
        m_staged->writeFile(threeEntries);
        m_staged->start();
        m_staged->games.selectGame(QStringLiteral("pong"));
        m_staged->controller->addFavorite();
        m_staged->table->sortByColumn(0, Qt::DescendingOrder);
        m_staged->table->selectRow(2);
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("b"));
        m_staged->favourites.undoStack().undo();
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("b"));
        m_staged->favourites.undoStack().redo();
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("b"));
    }

    void aCancelledRemovalRewritesTheFileAtQuit()
    {
        m_staged->writeFile(threeEntries);
        m_staged->start();
        m_staged->favourites.setValue(0, FavouriteKey::Title, QStringLiteral("Edited"));
        m_staged->table->selectRow(0);
        m_staged->desktop.answerAlert(QStringLiteral("favorites_remove_message"), 1);
        m_staged->controller->removeFavoritesTable();
        QCOMPARE(m_staged->controller->model()->rowCount(), 3);
        QVERIFY(m_staged->controller->favoritesUpdate());
        m_staged->controller->saveFavorites();
        QVERIFY(m_staged->file().contains("Edited"));
    }

    void aDoubleClickStartsTheFavourite()
    {
        m_staged->writeFile(threeEntries);
        m_staged->start();
        QSignalSpy launches(m_staged->controller.get(), &UCAppController::launchRequested);
        m_staged->table->selectRow(0);
        const QRect cell = m_staged->table->visualRect(m_staged->controller->model()->index(0, 1));
        QTest::mouseClick(m_staged->table->viewport(), Qt::LeftButton, {}, cell.center());
        QTest::mouseDClick(m_staged->table->viewport(), Qt::LeftButton, {}, cell.center());
        QCOMPARE(launches.size(), 1);
        QCOMPARE(launches[0][0].toString(), QStringLiteral("a"));
    }

    void aDoubleClickOnAnEmptyTableDoesNothing()
    {
        m_staged->start();
        m_staged->desktop.takeTranscript();
        QSignalSpy launches(m_staged->controller.get(), &UCAppController::launchRequested);
        QTest::mouseDClick(m_staged->table->viewport(), Qt::LeftButton, {}, QPoint(20, 10));
        m_staged->controller->tableViewDoubleAction2();
        QCOMPARE(launches.size(), 0);
        QCOMPARE(m_staged->desktop.transcript(), QStringList());
    }

    void aRandomFavouriteIsSelectedAlone()
    {
        m_staged->writeFile(threeEntries);
        m_staged->start();
        m_staged->table->selectAll();
        m_staged->desktop.takeTranscript();
        QSet<QString> drawn;
        for (int i = 0; i < 100 && drawn.size() < 3; ++i) {
            m_staged->controller->gameShuffle2();
            QCOMPARE(m_staged->controller->selectedRecords().size(), std::size_t(1));
            drawn.insert(m_staged->controller->tableViewSelectionROM2());
            QCOMPARE(m_staged->desktop.takeTranscript(), list({"sound slot_end"}));
        }
        QCOMPARE(drawn.size(), qsizetype(3));
    }

    void ofNoFavouritesNoneIsDrawn()
    {
        m_staged->start();
        m_staged->desktop.takeTranscript();
        m_staged->controller->gameShuffle2();
        QCOMPARE(m_staged->desktop.transcript(), list({"beep"}));
    }

    void optionsAreThoseOfTheFirstFavouriteOfThatName()
    {
        m_staged->writeFile(entryText("x", "Z", "-second") + entryText("x", "A", "-first")
                            + entryText("y", "Y") + entryText("y", "Z", "-hidden"));
        m_staged->start();
        m_staged->table->sortByColumn(1, Qt::AscendingOrder);
        QCOMPARE(m_staged->controller->search_priorityOption(QStringLiteral("x")), QStringLiteral("-first"));
        m_staged->table->sortByColumn(1, Qt::DescendingOrder);
        QCOMPARE(m_staged->controller->search_priorityOption(QStringLiteral("x")), QStringLiteral("-second"));
        m_staged->table->sortByColumn(1, Qt::AscendingOrder);
        QCOMPARE(m_staged->controller->search_priorityOption(QStringLiteral("y")), QString());
        QCOMPARE(m_staged->controller->search_priorityOption(QStringLiteral("X")), QString());
        QCOMPARE(m_staged->controller->search_priorityOption(QStringLiteral("/roms/x.zip")), QString());
        QCOMPARE(m_staged->controller->search_priorityOption(QString()), QString());
    }

    void theChipTakesNoOptionsAway()
    {
        m_staged->writeFile(entryText("x", "X", "-mine"));
        m_staged->start();
        m_staged->controller->showRecentlyPlayed(true);
        QCOMPARE(m_staged->controller->list().size(), std::size_t(0));
        QCOMPARE(m_staged->controller->search_priorityOption(QStringLiteral("x")), QStringLiteral("-mine"));
        QCOMPARE(m_staged->controller->search_priorityOption(QStringLiteral("y")), QString());
    }

    void readersTakeTheFirstSelectedFavourite()
    {
        m_staged->start();
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QString());
        QCOMPARE(m_staged->controller->tableViewSelectionCloneof(), QString());
        m_staged->controller->addFavoritesTable(pong);
        m_staged->controller->addFavoritesTable(bare);
        m_staged->favourites.setValue(0, FavouriteKey::Cloneof, QStringLiteral("parent"));
        m_staged->table->selectRow(1);
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("pong"));
        QCOMPARE(m_staged->controller->tableViewSelectionCloneof(), QStringLiteral("parent"));
        QCOMPARE(m_staged->controller->tableViewSelectionParentROM2(), QStringLiteral("parent"));
        QCOMPARE(m_staged->controller->tableViewSelectionYEAR(), QStringLiteral("1972"));
        QCOMPARE(m_staged->controller->tableViewSelectionMaker(), QStringLiteral("Atari"));
        m_staged->table->selectAll();
        QCOMPARE(m_staged->controller->tableViewSelectionROM2(), QStringLiteral("bare"));
    }

    void anAbsentValueReadsNull()
    {
        m_staged->writeFile(entryText("a", "A"));
        m_staged->start();
        QCOMPARE(m_staged->controller->tableViewSelectionYEAR(), QStringLiteral("(null)"));
    }

    void theStatusMarkFollowsTheSelection()
    {
        const auto entry = [](const QByteArray& name, const QByteArray& status) -> QByteArray {
            return "<dict><key>name</key><string>" + name + "</string><key>status</key><string>" + status
                + "</string></dict>";
        };
        m_staged->writeFile(entry("a", "good") + entry("b", "imperfect") + entry("c", "odd"));
        m_staged->start();
        QSignalSpy marks(m_staged->controller.get(), &UCAppController::markChanged);
        m_staged->table->selectRow(1);
        QCOMPARE(marks.last()[0].toString(), QStringLiteral("plovermark_imperfect"));
        const auto before = marks.size();
        m_staged->table->selectRow(2);
        QCOMPARE(marks.size(), before);
        m_staged->table->clearSelection();
        QCOMPARE(marks.last()[0].toString(), QStringLiteral("plovermark_none"));
    }

private:
    std::unique_ptr<StagedFavourites> m_staged;
};

TESSERA_TEST(FavouritesCommandsTest);
#include "favouritescommandstest.moc"
