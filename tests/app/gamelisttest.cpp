#include "stagedapp.h"

#include "app/windows/mainwindow.h"
#include "app/windows/preferenceswindow.h"
#include "catalogue/ui/factspanel.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametablemodel.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/recordediting.h"
#include "catalogue/ui/recordeditor.h"
#include "support/installedtexts.h"
#include "support/testmain.h"
#include "widgets/fontpanel.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QCheckBox>
#include <QFontDatabase>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QSignalSpy>

using namespace tessera;
using test::StagedApp;

class GameListTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_staged = std::make_unique<StagedApp>();
        m_staged->writeCatalogue();
        m_staged->start();
        m_list = &m_staged->app->gameList();
        m_table = m_staged->app->mainWindow().gameTable;
    }

    void cleanup() { m_staged.reset(); }

    void theModelIsSound()
    {
        QAbstractItemModelTester tester(m_list->model(),
                                        QAbstractItemModelTester::FailureReportingMode::QtTest);
        m_table->sortByColumn(1, Qt::DescendingOrder);
        m_staged->app->catalogue().setValue(0, Field::Title, QStringLiteral("Other"));
        QVERIFY(m_staged->app->catalogue().open());
    }

    void theFirstSortIsBySetNameAscending()
    {
        // By code point: capitals before small letters.
        m_staged->app->catalogue().setValue(2, Field::Name, QStringLiteral("Qix"));
        m_table->sortByColumn(3, Qt::AscendingOrder);
        m_list->main_tableViewSort();
        QCOMPARE(names(), (QStringList{"1943", "Qix", "galaga", "pong"}));
        m_staged->app->undo();
        m_table->sortByColumn(3, Qt::AscendingOrder);
        m_list->main_tableViewSort();
        QCOMPARE(names(),
                 (QStringList{QStringLiteral("1943"), QStringLiteral("galaga"), QStringLiteral("pong"),
                              QStringLiteral("qix")}));
        QCOMPARE(m_table->horizontalHeader()->sortIndicatorSection(), 0);
    }

    void aHeaderClickSortsByItsColumn()
    {
        m_table->sortByColumn(3, Qt::AscendingOrder);
        QCOMPARE(names(),
                 (QStringList{QStringLiteral("pong"), QStringLiteral("galaga"), QStringLiteral("qix"),
                              QStringLiteral("1943")}));
        m_table->sortByColumn(3, Qt::DescendingOrder);
        QCOMPARE(names().constFirst(), QStringLiteral("1943"));
    }

    void aMovedFirstColumnSortsTheNextStart()
    {
        QHeaderView* header = m_table->horizontalHeader();
        header->moveSection(header->visualIndex(3), 0);
        m_table->sortByColumn(1, Qt::DescendingOrder);
        m_staged->app->applicationWillTerminate();
        m_staged->start();
        m_list = &m_staged->app->gameList();
        m_table = m_staged->app->mainWindow().gameTable;
        QCOMPARE(m_table->horizontalHeader()->logicalIndex(0), 3);
        QCOMPARE(m_table->horizontalHeader()->sortIndicatorSection(), 3);
        QCOMPARE(m_table->horizontalHeader()->sortIndicatorOrder(), Qt::AscendingOrder);
        QCOMPARE(names(), (QStringList{"pong", "galaga", "qix", "1943"}));
    }

    void sortingKeepsTheSelection()
    {
        m_table->clearSelection();
        for (const int row : {1, 3})
            m_table->selectionModel()->select(m_list->model()->index(row, 0),
                                              QItemSelectionModel::Select | QItemSelectionModel::Rows);
        m_table->sortByColumn(3, Qt::DescendingOrder);
        QCOMPARE(m_list->selectedCount(), 2);
        QList<QString> selected;
        for (const QModelIndex& row : m_table->selectionModel()->selectedRows())
            selected << row.data().toString();
        selected.sort();
        QCOMPARE(selected, (QList<QString>{"galaga", "qix"}));
    }

    void everythingFollowsTheNewFirstRowOfASort()
    {
        m_staged->app->editRecord();
        m_table->clearSelection();
        // 1943 is imperfect, pong good.
        for (const int row : {0, 2})
            m_table->selectionModel()->select(m_list->model()->index(row, 0),
                                              QItemSelectionModel::Select | QItemSelectionModel::Rows);
        const QLabel* mark = m_staged->app->mainWindow().factsPanel->romMark;
        const QLineEdit* editor = m_staged->app->editing().editor().editSetname;
        QCOMPARE(mark->property("mark").toString(), QStringLiteral("plovermark_imperfect"));
        QCOMPARE(editor->text(), QStringLiteral("1943"));
        QSignalSpy pictures(m_list, &GameListController::selectionChanged);
        const QHeaderView* header = m_table->horizontalHeader();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(header->sectionViewportPosition(3) + 20, header->height() / 2));
        QCOMPARE(m_list->tableViewSelectionROM(), QStringLiteral("pong"));
        QCOMPARE(mark->property("mark").toString(), QStringLiteral("plovermark_good"));
        QCOMPARE(editor->text(), QStringLiteral("pong"));
        QCOMPARE(pictures.count(), 1);
    }

    void anAbsentValueIsShownAsNothing()
    {
        m_staged->writeStore("<database><object type=\"MAME\" id=\"z102\"><attribute name=\"name\" "
                             "type=\"string\">bare</attribute></object></database>");
        QVERIFY(m_staged->app->catalogue().open());
        QVERIFY(m_list->selectGame(QStringLiteral("bare")));
        QCOMPARE(m_list->tableViewSelectionTitleE(), QStringLiteral("(null)"));
        QVERIFY(!shownTexts().contains(QStringLiteral("(null)")));
        QVERIFY(shownTexts().contains(QStringLiteral("bare")));
    }

    void readersAreEmptyWithoutASelection()
    {
        m_table->clearSelection();
        QCOMPARE(m_list->tableViewSelectionROM(), QString());
        QCOMPARE(m_list->tableViewSelectionParentROM(), QString());
        QCOMPARE(m_list->tableViewSelectionTitleE(), QString());
        QCOMPARE(m_list->tableViewSelectionTitleJ(), QString());
    }

    void readersTakeTheFirstSelectedRecord()
    {
        m_table->selectRow(2);
        m_table->selectionModel()->select(m_list->model()->index(1, 0),
                                          QItemSelectionModel::Select | QItemSelectionModel::Rows);
        QCOMPARE(m_list->selectedCount(), 2);
        QCOMPARE(m_list->tableViewSelectionROM(), QStringLiteral("galaga"));
        QCOMPARE(m_list->tableViewSelectionParentROM(), QStringLiteral("galaga88"));
        QCOMPARE(m_list->tableViewSelectionTitleE(), QStringLiteral("Galaga"));
        QCOMPARE(m_list->tableViewSelectionTitleJ(), QStringLiteral("ギャラガ"));
    }

    void objectDictionaryHoldsSixFields()
    {
        QVERIFY(m_list->selectGame(QStringLiteral("galaga")));
        const RecordDictionary dictionary = m_list->objectDictionary();
        QCOMPARE(QStringList(dictionary.keys()),
                 (QStringList{QStringLiteral("cloneof"), QStringLiteral("maker"), QStringLiteral("name"),
                              QStringLiteral("title"), QStringLiteral("titlejp"), QStringLiteral("year")}));
        QCOMPARE(dictionary.value(QStringLiteral("cloneof")), QStringLiteral("galaga88"));
    }

    void theStatusMarkFollowsTheSelection_data()
    {
        QTest::addColumn<QString>("before");
        QTest::addColumn<QString>("game");
        QTest::addColumn<QString>("mark");
        QTest::newRow("good") << QString() << QStringLiteral("pong") << QStringLiteral("plovermark_good");
        QTest::newRow("preliminary") << QString() << QStringLiteral("qix")
                                     << QStringLiteral("plovermark_preliminary");
        QTest::newRow("imperfect") << QString() << QStringLiteral("1943")
                                   << QStringLiteral("plovermark_imperfect");
        QTest::newRow("another status leaves the old mark")
            << QStringLiteral("qix") << QStringLiteral("galaga") << QStringLiteral("plovermark_preliminary");
        QTest::newRow("nothing selected")
            << QStringLiteral("qix") << QString() << QStringLiteral("plovermark_none");
    }

    void theStatusMarkFollowsTheSelection()
    {
        QFETCH(QString, before);
        QFETCH(QString, game);
        QFETCH(QString, mark);
        if (!before.isEmpty())
            QVERIFY(m_list->selectGame(before));
        if (game.isEmpty())
            m_table->clearSelection();
        else
            QVERIFY(m_list->selectGame(game));
        const QLabel* shown = m_staged->app->mainWindow().factsPanel->romMark;
        QCOMPARE(shown->property("mark").toString(), mark);
        QVERIFY(shown->isVisible());
    }

    void lookupsKeepTheOrderOfTheQuestionAndLogWhatIsMissing_data()
    {
        QTest::addColumn<QString>("language");
        QTest::newRow("Japanese") << QStringLiteral("ja");
        QTest::newRow("English") << QStringLiteral("en");
    }
    void lookupsKeepTheOrderOfTheQuestionAndLogWhatIsMissing()
    {
        QFETCH(QString, language);
        const test::InstalledTexts texts(language);
        m_staged->desktop.takeTranscript();
        const auto found = m_list->search_arrangedObjects(
            Field::Name,
            {QStringLiteral("qix"), QStringLiteral("Pong"), QStringLiteral("1943"), QStringLiteral("qix")});
        QCOMPARE(found.size(), 3);
        QCOMPARE(found[0].value(QStringLiteral("maker")), QStringLiteral("Taito"));
        QCOMPARE(found[1].value(QStringLiteral("maker")), QStringLiteral("Capcom"));
        QCOMPARE(found[2].value(QStringLiteral("name")), QStringLiteral("qix"));
        QCOMPARE(found[0].size(), 9);
        QCOMPARE(m_staged->desktop.transcript(),
                 QStringList{QStringLiteral("log Pong は見つかりませんでした")});
    }

    void aDoubleClickWithNothingSelectedBeeps()
    {
        m_table->selectRow(1);
        m_staged->desktop.takeTranscript();
        QSignalSpy launches(m_list, &GameListController::launchRequested);
        const QPoint beneath(40, m_table->viewport()->height() - 5);
        QVERIFY(!m_table->indexAt(beneath).isValid());
        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier, beneath);
        QTest::mouseDClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier, beneath);
        QCOMPARE(m_list->selectedCount(), 0);
        QCOMPARE(launches.count(), 0);
        QCOMPARE(m_staged->desktop.transcript(), QStringList{QStringLiteral("beep")});
    }

    void anEmptySetNameBeepsToo()
    {
        m_staged->app->catalogue().setValue(0, Field::Name, QString());
        m_staged->desktop.takeTranscript();
        const QPoint row = m_table->visualRect(m_list->model()->index(2, 1)).center();
        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier, row);
        QTest::mouseDClick(m_table->viewport(), Qt::LeftButton, Qt::NoModifier, row);
        QCOMPARE(m_list->selectedCount(), 1);
        QCOMPARE(m_list->tableViewSelectionROM(), QString());
        QCOMPARE(m_staged->desktop.transcript(), QStringList{QStringLiteral("beep")});
    }

    void openROMfileTakesOneArchive()
    {
        QSignalSpy launches(m_list, &GameListController::launchRequested);
        m_staged->desktop.answerOpen(std::nullopt);
        m_list->openROMfile();
        QCOMPARE(launches.count(), 0);
        const OpenRequest& request = m_staged->desktop.openRequests.back();
        QVERIFY(request.files && !request.folders);
        QCOMPARE(request.extensions, QStringList{QStringLiteral("zip")});

        m_staged->desktop.answerOpen(QStringLiteral("/roms/qix.zip"));
        m_list->openROMfile();
        QCOMPARE(launches.count(), 1);
        QCOMPARE(launches.at(0).at(0).toString(), QStringLiteral("/roms/qix.zip"));
    }

    void anEditIsUndone()
    {
        QVERIFY(m_list->selectGame(QStringLiteral("pong")));
        const QModelIndex title = m_list->model()->index(2, 1);
        QVERIFY(m_list->model()->setData(title, QStringLiteral("Tennis"), Qt::EditRole));
        QCOMPARE(title.data().toString(), QStringLiteral("Tennis"));
        m_staged->app->undo();
        QCOMPARE(title.data().toString(), QStringLiteral("Pong"));
        QVERIFY(!m_staged->app->catalogue().hasChanges());
        m_staged->app->redo();
        QCOMPARE(title.data().toString(), QStringLiteral("Tennis"));
    }

    void theFactsFollowTheSelection()
    {
        QVERIFY(m_list->selectGame(QStringLiteral("pong")));
        QVERIFY(shownTexts().contains(QStringLiteral("ポン")));
        QVERIFY(shownTexts().contains(QStringLiteral("Atari")));
        m_table->selectAll();
        QVERIFY(!shownTexts().contains(QStringLiteral("Atari")));
    }

    void rowsFollowFontAndHeightSettings()
    {
        QCOMPARE(m_table->verticalHeader()->defaultSectionSize(), 20);
        QCOMPARE(m_list->model()->index(0, 0).data(Qt::FontRole).value<QFont>().pixelSize(), 13);
        m_staged->app->makeTextBigger();
        QCOMPARE(m_table->verticalHeader()->defaultSectionSize(), 21);
        QCOMPARE(m_list->model()->index(0, 0).data(Qt::FontRole).value<QFont>().pixelSize(), 14);
    }

    void halfAPixelOfARowIsAWholeOne()
    {
        for (int size = 12; size >= 9; --size)
            m_staged->app->makeTextSmaller();
        QCOMPARE(m_staged->defaults.value(keys::rowHeight.name), QVariant(13.5));
        QCOMPARE(m_table->verticalHeader()->defaultSectionSize(), 14);
        QCOMPARE(m_list->model()->index(0, 0).data(Qt::FontRole).value<QFont>().pixelSize(), 9);
        m_staged->app->makeTextSmaller();
        QCOMPARE(m_staged->desktop.transcript(), QStringList{QStringLiteral("beep")});
    }

    void rowsHaveTheChosenFont()
    {
        m_staged->app->showFontPanel1();
        FontPanel* panel = nullptr;
        for (QWidget* window : QApplication::topLevelWidgets())
            panel = panel != nullptr ? panel : qobject_cast<FontPanel*>(window);
        if (panel == nullptr)
            QFAIL("no panel is shown");
        panel->setPanelFont(QFontDatabase::font(QStringLiteral("DejaVu Sans"), QStringLiteral("Bold"), 12));
        Q_EMIT panel->fontChosen();
        const auto font = m_list->model()->index(0, 0).data(Qt::FontRole).value<QFont>();
        QCOMPARE(font.family(), QStringLiteral("DejaVu Sans"));
        QCOMPARE(font.styleName(), QStringLiteral("Bold"));
        QCOMPARE(font.pixelSize(), 13);
        QCOMPARE(font.families().sliced(1), QFont().families());
    }

    void onlySettingsOfTheLookPaintTheRowsAnew()
    {
        QSignalSpy painted(m_list->model(), &QAbstractItemModel::dataChanged);
        auto* preferences = &m_staged->app->preferencesWindow();
        m_staged->app->showPrefsWindow();
        preferences->findChild<QCheckBox*>(QStringLiteral("checkboxMaximize"))->click();
        QCOMPARE(painted.count(), 0);
        preferences->findChild<QCheckBox*>(QStringLiteral("coloringBox"))->click();
        QCOMPARE(painted.count(), 1);
    }

    void coloursComeOnlyWithTheColouringKey()
    {
        const QModelIndex pong = m_list->model()->index(2, 0);
        QCOMPARE(pong.data(Qt::ForegroundRole).value<QColor>().alphaF(), 1.0F);
        m_staged->defaults.setValue(keys::GamelistColoring.name, true);
        QVERIFY(pong.data(Qt::ForegroundRole).value<QColor>().alphaF() < 0.6F);
    }

private:
    QStringList names() const
    {
        QStringList list;
        for (int row = 0; row < m_list->model()->rowCount(); ++row)
            list << m_list->model()->index(row, 0).data().toString();
        return list;
    }

    QStringList shownTexts() const
    {
        QStringList texts;
        for (const QLabel* label : m_staged->app->mainWindow().factsPanel->findChildren<QLabel*>()) {
            if (label->isVisible())
                texts << label->text();
        }
        return texts;
    }

    std::unique_ptr<StagedApp> m_staged;
    GameListController* m_list = nullptr;
    GameTableView* m_table = nullptr;
};

TESSERA_TEST(GameListTest);
#include "gamelisttest.moc"
