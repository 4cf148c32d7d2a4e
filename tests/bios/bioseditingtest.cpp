#include "biosroom.h"

#include "support/installedtexts.h"
#include "support/testmain.h"
#include "widgets/theme.h"

#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

using namespace tessera;

/// What the user does to the BIOS list, through the panel's own controls.
class BiosEditingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_room = std::make_unique<test::BiosRoom>();
        m_room->panel->show();
        QVERIFY(QTest::qWaitForWindowActive(m_room->panel.get()));
        m_rows = model().rowCount();
    }

    void cleanup() { m_room.reset(); }

    void aNewEntryIsFilledInFromCellToCell()
    {
        addEntry();
        type("My board", Qt::Key_Tab);
        type("mine", Qt::Key_Tab);
        type("myboard", Qt::Key_Return);
        const auto entry = model().entry(model().index(m_rows, 0));
        QVERIFY(entry);
        QCOMPARE(entry->name, QStringLiteral("My board"));
        QCOMPARE(entry->bios, QStringLiteral("mine"));
        QCOMPARE(entry->rom, QStringLiteral("myboard"));
        m_room->make();
        QCOMPARE(model().rowCount(), m_rows + 1);
    }

    void tabbingBackGoesToTheCellBefore()
    {
        addEntry();
        type("My board", Qt::Key_Tab);
        type("mine", Qt::Key_Backtab);
        QCOMPARE(m_room->view().currentIndex().column(), int(BiosModel::Name));
        type("", Qt::Key_Backtab);
        QCOMPARE(m_room->view().currentIndex().column(), int(BiosModel::Rom));
        QVERIFY(m_room->view().currentIndex().row() != m_rows);
    }

    void aNewEntryCanBeSet()
    {
        addEntry();
        type("", Qt::Key_Tab);
        type("mine", Qt::Key_Return);
        QTest::keyClick(&m_room->view(), Qt::Key_Return);
        QCOMPARE(m_room->popup.text(), QStringLiteral("mine"));
        QCOMPARE(m_room->popup.selected().index, int(biosSets.size()));
        QCOMPARE(storedState(m_room->defaults, keys::Biostype, growingBiosSets).title,
                 QStringLiteral("mine"));
        // It stays where it is, though the entry goes.
        QTest::mouseClick(m_room->panel->removeButton, Qt::LeftButton);
        QCOMPARE(m_room->popup.text(), QStringLiteral("mine"));
        QCOMPARE(keptTitles(m_room->defaults, growingBiosSets), QStringList("mine"));
    }

    void anEntryThatIsGivenUpIsGone_data()
    {
        QTest::addColumn<QList<int>>("keys");
        QTest::newRow("at once") << QList<int>{Qt::Key_Escape};
        QTest::newRow("in its second cell") << QList<int>{Qt::Key_Tab, Qt::Key_Escape};
        QTest::newRow("nothing typed") << QList<int>{Qt::Key_Return};
        QTest::newRow("out of its last cell") << QList<int>{Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Tab};
        QTest::newRow("for the one above") << QList<int>{Qt::Key_Backtab};
    }

    void anEntryThatIsGivenUpIsGone()
    {
        QFETCH(QList<int>, keys);
        addEntry();
        for (const int key : keys)
            type("", Qt::Key(key));
        QCOMPARE(model().rowCount(), m_rows);
        QVERIFY(!QFile::exists(m_room->ownFile()));
        QVERIFY(!m_room->undo.canUndo());
    }

    void escapeLeavesWhatWasTypedInAnotherCell()
    {
        addEntry();
        type("My board", Qt::Key_Tab);
        type("", Qt::Key_Escape);
        QCOMPARE(model().rowCount(), m_rows + 1);
        QCOMPARE(m_room->selectedName(), QStringLiteral("My board"));
    }

    void whileItIsBlankItIsInNoFile()
    {
        addEntry();
        m_room->list->saveAction();
        QCOMPARE(int(readBiosEntries(m_room->ownFile())->size()), m_rows);
    }

    void removingCanBeUndone()
    {
        const QModelIndex neogeo = model().index(2, 0);
        const int children = model().rowCount(neogeo);
        QVERIFY(children > 2);
        m_room->select(neogeo);
        QTest::mouseClick(m_room->panel->removeButton, Qt::LeftButton);
        QCOMPARE(model().rowCount(), m_rows - 1);
        QVERIFY2(m_room->info().startsWith("bios_removed"), qPrintable(m_room->info()));
        m_room->undo.undo();
        QCOMPARE(model().rowCount(), m_rows);
        QCOMPARE(m_room->view().currentIndex(), model().index(2, 0));
        QCOMPARE(model().entry(model().index(2, 0))->rom, QStringLiteral("neogeo"));
        QCOMPARE(model().rowCount(model().index(2, 0)), children);
        QVERIFY(m_room->view().isExpanded(model().index(2, 0)));
        m_room->undo.redo();
        QCOMPARE(model().rowCount(), m_rows - 1);
        m_room->make();
        QCOMPARE(model().rowCount(), m_rows - 1);
        // What was done before the start is for good.
        QVERIFY(!m_room->undo.canUndo());
    }

    void undoingSavesAndShowsTheRowThatDiffers()
    {
        const QModelIndex us = model().index(1, 0, model().index(2, 0));
        const QString name = us.data().toString();
        m_room->select(us);
        QTest::keyClick(&m_room->view(), Qt::Key_F2);
        type("Mine", Qt::Key_Return);
        m_room->select(model().index(m_rows - 1, 0));
        m_room->undo.undo();
        QCOMPARE(m_room->selectedName(), name);
        QVERIFY(m_room->view().viewport()->rect().intersects(
            m_room->view().visualRect(m_room->view().currentIndex())));
        m_room->make();
        QCOMPARE(model().index(1, 0, model().index(2, 0)).data().toString(), name);
    }

    void nothingIsEditedWhileTheEmulatorIsAsked()
    {
        m_room->setListed("<mame></mame>");
        m_room->select(model().index(2, 0));
        QSignalSpy asked(m_room->list.get(), &Bioslist::asked);
        QTest::mouseClick(m_room->panel->rebuildButton, Qt::LeftButton);
        m_room->select(model().index(3, 0));
        QVERIFY(!m_room->panel->addButton->isEnabled() && !m_room->panel->removeButton->isEnabled());
        QTest::keyClick(&m_room->view(), Qt::Key_F2);
        QVERIFY(editor() == nullptr);
        QTRY_COMPARE(asked.count(), 1);
        m_room->select(model().index(3, 0));
        QVERIFY(m_room->panel->addButton->isEnabled() && m_room->panel->removeButton->isEnabled());
        QTest::keyClick(&m_room->view(), Qt::Key_F2);
        QVERIFY(editor() != nullptr);
    }

    void thePanelShowsWhichBiosIsSet()
    {
        const test::InstalledTexts texts(QStringLiteral("en"));
        const QLabel& shown = *m_room->panel->text_setting;
        QCOMPARE(marked(), (QList<QPersistentModelIndex>{cell(0), cell(1)}));
        m_room->defaults.setIndex(keys::Biostype, 2);
        QCOMPARE(shown.text(), QStringLiteral("Set now: us"));
        const QModelIndex us = model().index(1, BiosModel::Bios, model().index(2, 0));
        QVERIFY(marked().contains(us));
        for (const QPersistentModelIndex& each : marked())
            QCOMPARE(each.data().toString(), QStringLiteral("us"));
        QVERIFY(!us.data(Qt::AccessibleDescriptionRole).toString().isEmpty());
        // Chosen in the preferences, and by the panel.
        m_room->defaults.setIndex(keys::Biostype, 3);
        QCOMPARE(shown.text(), QStringLiteral("Set now: japan"));
        m_room->select(us);
        QTest::keyClick(&m_room->view(), Qt::Key_Return);
        QCOMPARE(shown.text(), QStringLiteral("Set now: us"));
        m_room->defaults.setIndex(keys::Biostype, -1);
        QVERIFY(shown.text().isEmpty() && marked().isEmpty());
    }

    void rowsHaveOneHeightFromTheFirstOpening()
    {
        m_room.reset();
        theme::applyStyleSheet(*qApp);
        m_room = std::make_unique<test::BiosRoom>();
        m_room->panel->show();
        const int first = m_room->view().visualRect(model().index(0, 0)).height();
        m_room->list->awakeFromNib();
        const int later = m_room->view().visualRect(model().index(0, 0)).height();
        qApp->setStyleSheet(QString());
        QCOMPARE(first, later);
    }

private:
    BiosModel& model() { return m_room->model(); }
    QModelIndex cell(int row) { return model().index(row, BiosModel::Bios); }
    QLineEdit* editor() { return m_room->view().viewport()->findChild<QLineEdit*>(); }

    void addEntry()
    {
        QTest::mouseClick(m_room->panel->addButton, Qt::LeftButton);
        QVERIFY(editor() != nullptr);
        QCOMPARE(model().rowCount(), m_rows + 1);
    }

    // The editor that was left stays until the next turn of the event loop.
    void type(const char* text, Qt::Key last)
    {
        QLineEdit* field = m_room->view().viewport()->findChildren<QLineEdit*>().constLast();
        QTest::keyClicks(field, text);
        QTest::keyClick(field, last);
        QCoreApplication::sendPostedEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QList<QPersistentModelIndex> marked(const QModelIndex& parent = {})
    {
        QList<QPersistentModelIndex> found;
        for (int row = 0; row < model().rowCount(parent); ++row) {
            const QModelIndex bios = model().index(row, BiosModel::Bios, parent);
            if (!bios.data(Qt::DecorationRole).isNull())
                found << bios;
            found << marked(bios.siblingAtColumn(0));
        }
        return found;
    }

    std::unique_ptr<test::BiosRoom> m_room;
    int m_rows = 0;
};

TESSERA_TEST(BiosEditingTest);
#include "bioseditingtest.moc"
