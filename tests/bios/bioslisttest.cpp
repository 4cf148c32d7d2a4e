#include "biosroom.h"

#include "core/keptcopy.h"
#include "support/testmain.h"
#include "widgets/theme.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>
#include <QScrollBar>
#include <QTreeView>

using namespace tessera;

static void takeAwayShippedList()
{
    Q_CLEANUP_RESOURCE(look);
}

static void putBackShippedList()
{
    Q_INIT_RESOURCE(look);
}

namespace {

constexpr char listed[] = "<mame><machine name=\"newbios\" isbios=\"yes\"><description>New</description>"
                          "<biosset name=\"n1\" description=\"One\"/><biosset name=\"euro\" "
                          "description=\"Two\"/></machine></mame>";

} // namespace

/// The BIOS panel with the shipped list, and an emulator of our own.
class BioslistTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_room = std::make_unique<test::BiosRoom>(); }

    void cleanup() { m_room.reset(); }

    void theModelIsSound()
    {
        const QAbstractItemModelTester tester(m_room->panel->treeController_list,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        m_room->panel->treeController_list->add({"b", "r", "n", {}});
        m_room->panel->treeController_list->remove(m_room->panel->treeController_list->index(2, 0));
        m_room->list->awakeFromNib();
    }

    void everyEntryIsShownFromTheStart()
    {
        QCOMPARE(m_room->model().rowCount(), 22);
        QVERIFY(m_room->panel->biosView->isExpanded(m_room->model().index(2, 0)));
        QVERIFY(m_room->panel->text_infomation->text().isEmpty());
        QCOMPARE(shownIcon(), pictureOf(theme::icon("romfile")));
        m_room->panel->show();
        QScrollBar& bar = *m_room->view().verticalScrollBar();
        QVERIFY(bar.maximum() > 0);
        bar.setValue(bar.maximum());
        m_room->view().collapseAll();
        m_room->list->awakeFromNib();
        QCOMPARE(bar.value(), 0);
        for (int row = fixedRows; row < m_room->model().rowCount(); ++row) {
            const QModelIndex set = m_room->model().index(row, 0);
            QCOMPARE(m_room->view().isExpanded(set), m_room->model().hasChildren(set));
        }
    }

    void withoutAnyListTheTreeIsEmpty()
    {
        takeAwayShippedList();
        const auto putBack = qScopeGuard(putBackShippedList);
        m_room->make();
        QCOMPARE(m_room->desktop.takeTranscript(), QStringList{"log bioslist.xml not found"});
        QCOMPARE(m_room->model().rowCount(), 0);
    }

    void theIconTellsWhetherTheArchiveIsThere()
    {
        m_room->select(m_room->model().index(2, 0));
        QCOMPARE(shownIcon(), pictureOf(theme::icon("no_romfile", "faint")));
        QFile archive(m_room->folder.filePath("neogeo.zip"));
        QVERIFY(archive.open(QIODevice::WriteOnly));
        m_room->select(m_room->model().index(0, 0));
        QCOMPARE(shownIcon(), pictureOf(theme::icon("romfile")));
        m_room->select(m_room->model().index(2, 0));
        QCOMPARE(shownIcon(), pictureOf(QFileIconProvider().icon(QFileInfo(archive))));
        QVERIFY(shownIcon() != pictureOf(theme::icon("romfile")));
    }

    void theFixedRowsTellWhatTheyStandFor()
    {
        m_room->select(m_room->model().index(0, 0));
        QCOMPARE(m_room->info(), QStringLiteral("Bios is blank"));
        m_room->select(m_room->model().index(1, 0));
        QCOMPARE(m_room->info(), QStringLiteral("Use the default BIOS"));
        m_room->panel->biosView->setCurrentIndex({});
        QCOMPARE(m_room->info(), QString());
    }

    void anArchiveIsLookedForWhenItsEntryIsSelected()
    {
        QFile archive(m_room->folder.filePath("neogeo.zip"));
        QVERIFY(archive.open(QIODevice::WriteOnly));
        const QModelIndex neogeo = m_room->model().index(2, 0);
        m_room->select(m_room->model().index(1, 0, neogeo));
        QCOMPARE(m_room->info(), QStringLiteral("This file exist"));
        QVERIFY(archive.remove());
        m_room->select(neogeo);
        QCOMPARE(m_room->info(), QStringLiteral("This file does not exist"));
    }

    void aDoubleClickChoosesTheBios()
    {
        m_room->panel->show();
        const QModelIndex us = m_room->model().index(1, 0, m_room->model().index(2, 0));
        QCOMPARE(us.siblingAtColumn(BiosModel::Bios).data().toString(), QStringLiteral("us"));
        m_room->panel->biosView->scrollTo(us);
        const QPoint at = m_room->panel->biosView->visualRect(us).center();
        QTest::mouseClick(m_room->panel->biosView->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(m_room->panel->biosView->viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(m_room->popup.text(), QStringLiteral("us"));
        QCOMPARE(m_room->stored.value(keys::Biostype.name)->toDouble(),
                 static_cast<double>(m_room->popup.selected().index));
        QCOMPARE(m_room->info(), QStringLiteral("Changed the BIOS setting to \"us\""));
        QCOMPARE(m_room->desktop.takeTranscript(), QStringList{"sound Pop"});
    }

    void theBlankEntryIsTheFirstItem()
    {
        m_room->defaults.setIndex(keys::Biostype, 3);
        for (const int row : {0, 1}) {
            m_room->select(m_room->model().index(row, 0));
            m_room->list->tableViewDoubleAction();
            QCOMPARE(m_room->popup.selected().index, 0);
            QCOMPARE(m_room->stored.value(keys::Biostype.name)->toDouble(), 0.0);
            QCOMPARE(m_room->info(), QStringLiteral("Changed the BIOS setting to \" \""));
        }
    }

    // What is no single word could not stand on a command line.
    void aBiosThatThePopUpLacksLeavesItsSelection()
    {
        m_room->defaults.setIndex(keys::Biostype, 3);
        m_room->select(m_room->model().add({"two words", "of", "it", {}}));
        m_room->list->tableViewDoubleAction();
        QCOMPARE(m_room->popup.selected().index, 3);
        QCOMPARE(m_room->stored.value(keys::Biostype.name)->toDouble(), 3.0);
        QCOMPARE(m_room->info(), QStringLiteral("Changed the BIOS setting to \"two words\""));
    }

    void nothingSelectedChoosesNothing()
    {
        m_room->panel->biosView->setCurrentIndex({});
        m_room->list->tableViewDoubleAction();
        QVERIFY(!m_room->stored.value(keys::Biostype.name));
        QVERIFY(m_room->desktop.transcript().isEmpty());
    }

    void whatIsEditedIsInTheUsersCopy()
    {
        QCOMPARE(m_room->list->pathOfDataFile(), QStringLiteral(":/bioslist.xml"));
        const QModelIndex added = m_room->model().add({});
        QVERIFY(m_room->model().setData(added.siblingAtColumn(BiosModel::Bios), "mine"));
        QCOMPARE(m_room->list->pathOfDataFile(), m_room->ownFile());
        const int rows = m_room->model().rowCount();
        m_room->make();
        QCOMPARE(m_room->model().rowCount(), rows);
        QCOMPARE(m_room->model().entry(m_room->model().index(rows - 1, 0))->bios, QStringLiteral("mine"));
        m_room->select(m_room->model().index(rows - 1, 0));
        QTest::mouseClick(m_room->panel->removeButton, Qt::LeftButton);
        QCOMPARE(m_room->model().rowCount(), rows - 1);
        m_room->make();
        QCOMPARE(m_room->model().rowCount(), rows - 1);
    }

    void theFixedRowsCannotBeChanged()
    {
        for (const int row : {0, 1}) {
            const QModelIndex index = m_room->model().index(row, 0);
            QVERIFY(!m_room->model().flags(index).testFlag(Qt::ItemIsEditable));
            QVERIFY(!m_room->model().remove(index));
            m_room->select(index);
            QVERIFY(!m_room->panel->removeButton->isEnabled());
        }
    }

    void aBrokenCopyIsInTheLogOnly()
    {
        QFile file(m_room->ownFile());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("nonsense") > 0);
        file.close();
        m_room->make();
        QCOMPARE(m_room->model().rowCount(), 0);
        QCOMPARE(m_room->desktop.takeTranscript().size(), 1);
    }

    void aBrokenCopyIsKeptBeforeItIsWrittenOver()
    {
        QFile file(m_room->ownFile());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("nonsense") > 0);
        file.close();
        m_room->make();
        m_room->desktop.takeTranscript();
        m_room->list->saveAction();
        QFile kept(datedName(m_room->ownFile(), m_room->desktop.clock));
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), QByteArray("nonsense"));
        QVERIFY(readBiosEntries(m_room->ownFile()));
        // Once.
        m_room->list->saveAction();
        QCOMPARE(QFileInfo(m_room->ownFile()).dir().entryList({"*.xml"}, QDir::Files).size(), 2);
    }

    void nothingSelectedSaysNothing()
    {
        m_room->make();
        m_room->panel->biosView->clearSelection();
        QCOMPARE(m_room->panel->text_infomation->text(), QString());
        m_room->list->tableViewDoubleAction();
        QVERIFY(m_room->desktop.takeTranscript().isEmpty());
    }

    void aCopyThatCannotBeWrittenIsInTheLogOnly()
    {
        QVERIFY(QDir().mkpath(m_room->ownFile()));
        m_room->list->saveAction();
        const QStringList log = m_room->desktop.takeTranscript();
        QCOMPARE(log.size(), 1);
        QVERIFY(log[0].startsWith("log "));
    }

    void rebuildingAddsWhatTheEmulatorKnows()
    {
        m_room->setListed(listed);
        const int rows = m_room->model().rowCount();
        m_room->model().add({"mine", "own", "n", {}});
        QSignalSpy asked(m_room->list.get(), &Bioslist::asked);
        QTest::mouseClick(m_room->panel->rebuildButton, Qt::LeftButton);
        QVERIFY(m_room->list->isAsking() && !m_room->panel->rebuildButton->isEnabled());
        QTRY_COMPARE(asked.count(), 1);
        QVERIFY(!m_room->list->isAsking() && m_room->panel->rebuildButton->isEnabled());
        QCOMPARE(m_room->model().rowCount(), rows + 2);
        QCOMPARE(m_room->model().entry(m_room->model().index(rows, 0))->bios, QStringLiteral("mine"));
        QCOMPARE(m_room->model().entry(m_room->model().index(rows + 1, 0))->rom, QStringLiteral("newbios"));
        QCOMPARE(keptTitles(m_room->defaults, growingBiosSets), (QStringList{"mine", "n1"}));
        QVERIFY(m_room->undo.canUndo());
        m_room->make();
        QCOMPARE(m_room->model().rowCount(), rows + 2);
    }

    void theNamesOfTheSelectedGameAreLearntOnce()
    {
        m_room->setListed(listed);
        for (int i = 1; i <= 2; ++i) {
            QSignalSpy asked(m_room->list.get(), &Bioslist::asked);
            QTest::mouseClick(m_room->panel->gameButton, Qt::LeftButton);
            QTRY_COMPARE(asked.count(), 1);
            // The other one is shipped.
            QCOMPARE(keptTitles(m_room->defaults, growingBiosSets), QStringList{"n1"});
        }
    }

    void anEmulatorThatCannotBeAskedIsSaid_data()
    {
        QTest::addColumn<QString>("emulator");
        QTest::addColumn<QString>("text");
        QTest::newRow("not there") << "/nowhere/mame" << "bios_not_started";
        QTest::newRow("no answer") << QStringLiteral(TESSERA_FAKEEMULATOR) << "bios_no_answer";
    }

    void anEmulatorThatCannotBeAskedIsSaid()
    {
        QFETCH(QString, emulator);
        QFETCH(QString, text);
        m_room->setEmulator(emulator);
        qunsetenv("FAKE_LISTXML");
        qputenv("FAKE_THEN", "exit3");
        QSignalSpy asked(m_room->list.get(), &Bioslist::asked);
        m_room->list->rebuild();
        QTRY_COMPARE(asked.count(), 1);
        qunsetenv("FAKE_THEN");
        QVERIFY2(m_room->info().startsWith(text), qPrintable(m_room->info()));
        QCOMPARE(m_room->desktop.takeTranscript(), QStringList{"beep"});
        QCOMPARE(m_room->model().rowCount(), 22);
    }

    void withoutAnEmulatorOrAGameItBeeps()
    {
        m_room->selection.game.name = QStringLiteral("-version");
        m_room->list->addOfGame();
        m_room->selection.game = {};
        m_room->list->addOfGame();
        m_room->setEmulator(QString());
        m_room->list->rebuild();
        QVERIFY(!m_room->list->isAsking());
        QCOMPARE(m_room->desktop.takeTranscript(), (QStringList{"beep", "beep", "beep"}));
    }

    void theCommandShowsAndHidesThePanel()
    {
        m_room->list->ViewBiosList();
        QVERIFY(m_room->panel->isVisible());
        m_room->list->ViewBiosList();
        QVERIFY(!m_room->panel->isVisible());
    }

private:
    QImage shownIcon() { return m_room->panel->image_icon->pixmap().toImage(); }
    static QImage pictureOf(const QIcon& icon) { return icon.pixmap(32, 32).toImage(); }

    std::unique_ptr<test::BiosRoom> m_room;
};

TESSERA_TEST(BioslistTest);
#include "bioslisttest.moc"
