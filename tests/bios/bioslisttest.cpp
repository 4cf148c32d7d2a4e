#include "bios/ui/bioslist.h"

#include "bios/ui/biosmodel.h"
#include "bios/ui/biospanel.h"
#include "core/keptcopy.h"
#include "launch/growingitems.h"
#include "launch/popupitems.h"
#include "platform/defaultscontroller.h"
#include "support/scripteddesktop.h"
#include "support/testmain.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QToolButton>
#include <QTreeView>

using namespace tessera;

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
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_desktop = std::make_unique<test::ScriptedDesktop>();
        m_stored = std::make_unique<UserDefaults>(m_folder->filePath("settings.ini"));
        m_defaults = std::make_unique<DefaultsController>(*m_stored);
        m_defaults->setInitialValues(QString(), QString());
        m_defaults->setText(keys::RomsPath, m_folder->path());
        m_popup = std::make_unique<QComboBox>();
        for (const PopupItem& item : biosSets)
            m_popup->addItem(item.title != nullptr ? QString::fromLatin1(item.title)
                                                   : QStringLiteral("none"));
        m_emulator = QStringLiteral(TESSERA_FAKEEMULATOR);
        m_game = QStringLiteral("pong");
        make();
    }

    void cleanup()
    {
        m_list.reset();
        m_panel.reset();
        m_popup.reset();
    }

    void theModelIsSound()
    {
        const QAbstractItemModelTester tester(m_panel->treeController_list,
                                              QAbstractItemModelTester::FailureReportingMode::Fatal);
        m_panel->treeController_list->add({"b", "r", "n", {}});
        m_panel->treeController_list->remove(m_panel->treeController_list->index(2, 0));
        m_list->awakeFromNib();
    }

    void everyEntryIsShownFromTheStart()
    {
        QCOMPARE(model().rowCount(), 22);
        QVERIFY(m_panel->biosView->isExpanded(model().index(2, 0)));
        QVERIFY(m_panel->text_infomation->text().isEmpty());
        QVERIFY(!m_panel->image_icon->pixmap().isNull());
    }

    void theFixedRowsTellWhatTheyStandFor()
    {
        select(model().index(0, 0));
        QCOMPARE(info(), QStringLiteral("Bios is blank"));
        select(model().index(1, 0));
        QCOMPARE(info(), QStringLiteral("Use the default BIOS"));
        m_panel->biosView->setCurrentIndex({});
        QCOMPARE(info(), QString());
    }

    void anArchiveIsLookedForWhenItsEntryIsSelected()
    {
        QFile archive(m_folder->filePath("neogeo.zip"));
        QVERIFY(archive.open(QIODevice::WriteOnly));
        const QModelIndex neogeo = model().index(2, 0);
        select(model().index(1, 0, neogeo));
        QCOMPARE(info(), QStringLiteral("This file exist"));
        QVERIFY(archive.remove());
        select(neogeo);
        QCOMPARE(info(), QStringLiteral("This file does not exist"));
    }

    void aDoubleClickChoosesTheBios()
    {
        m_panel->show();
        const QModelIndex us = model().index(1, 0, model().index(2, 0));
        QCOMPARE(us.siblingAtColumn(BiosModel::Bios).data().toString(), QStringLiteral("us"));
        m_panel->biosView->scrollTo(us);
        const QPoint at = m_panel->biosView->visualRect(us).center();
        QTest::mouseClick(m_panel->biosView->viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(m_panel->biosView->viewport(), Qt::LeftButton, {}, at);
        QCOMPARE(m_popup->currentText(), QStringLiteral("us"));
        QCOMPARE(m_stored->value(keys::Biostype.name)->toDouble(),
                 static_cast<double>(m_popup->currentIndex()));
        QCOMPARE(info(), QStringLiteral("Changed the BIOS setting to \"us\""));
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"sound Pop"});
    }

    void theBlankEntryIsTheFirstItem()
    {
        m_popup->setCurrentIndex(3);
        for (const int row : {0, 1}) {
            select(model().index(row, 0));
            m_list->tableViewDoubleAction();
            QCOMPARE(m_popup->currentIndex(), 0);
            QCOMPARE(m_stored->value(keys::Biostype.name)->toDouble(), 0.0);
            QCOMPARE(info(), QStringLiteral("Changed the BIOS setting to \" \""));
        }
    }

    void aBiosThatThePopUpLacksLeavesItsSelection()
    {
        m_popup->setCurrentIndex(3);
        select(model().add({"unheard", "of", "it", {}}));
        m_list->tableViewDoubleAction();
        QCOMPARE(m_popup->currentIndex(), 3);
        QCOMPARE(m_stored->value(keys::Biostype.name)->toDouble(), 3.0);
        QCOMPARE(info(), QStringLiteral("Changed the BIOS setting to \"unheard\""));
    }

    void nothingSelectedChoosesNothing()
    {
        m_panel->biosView->setCurrentIndex({});
        m_list->tableViewDoubleAction();
        QVERIFY(!m_stored->value(keys::Biostype.name));
        QVERIFY(m_desktop->transcript().isEmpty());
    }

    void whatIsEditedIsInTheUsersCopy()
    {
        QCOMPARE(m_list->pathOfDataFile(), QStringLiteral(":/bioslist.xml"));
        const QModelIndex added = model().add({});
        QVERIFY(model().setData(added.siblingAtColumn(BiosModel::Bios), "mine"));
        QCOMPARE(m_list->pathOfDataFile(), ownFile());
        const int rows = model().rowCount();
        make();
        QCOMPARE(model().rowCount(), rows);
        QCOMPARE(model().entry(model().index(rows - 1, 0))->bios, QStringLiteral("mine"));
        select(model().index(rows - 1, 0));
        QTest::mouseClick(m_panel->removeButton, Qt::LeftButton);
        QCOMPARE(model().rowCount(), rows - 1);
        make();
        QCOMPARE(model().rowCount(), rows - 1);
    }

    void theFixedRowsCannotBeChanged()
    {
        for (const int row : {0, 1}) {
            const QModelIndex index = model().index(row, 0);
            QVERIFY(!model().flags(index).testFlag(Qt::ItemIsEditable));
            QVERIFY(!model().remove(index));
            select(index);
            QVERIFY(!m_panel->removeButton->isEnabled());
        }
    }

    void aBrokenCopyIsInTheLogOnly()
    {
        QFile file(ownFile());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("nonsense") > 0);
        file.close();
        make();
        QCOMPARE(model().rowCount(), 0);
        QCOMPARE(m_desktop->takeTranscript().size(), 1);
    }

    void aBrokenCopyIsKeptBeforeItIsWrittenOver()
    {
        QFile file(ownFile());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write("nonsense") > 0);
        file.close();
        make();
        m_desktop->takeTranscript();
        m_list->saveAction();
        QFile kept(datedName(ownFile(), m_desktop->clock));
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), QByteArray("nonsense"));
        QVERIFY(readBiosEntries(ownFile()));
        // Once.
        m_list->saveAction();
        QCOMPARE(QFileInfo(ownFile()).dir().entryList({"*.xml"}, QDir::Files).size(), 2);
    }

    void nothingSelectedSaysNothing()
    {
        make();
        m_panel->biosView->clearSelection();
        QCOMPARE(m_panel->text_infomation->text(), QString());
        m_list->tableViewDoubleAction();
        QVERIFY(m_desktop->takeTranscript().isEmpty());
    }

    void aCopyThatCannotBeWrittenIsInTheLogOnly()
    {
        QVERIFY(QDir().mkpath(ownFile()));
        m_list->saveAction();
        const QStringList log = m_desktop->takeTranscript();
        QCOMPARE(log.size(), 1);
        QVERIFY(log[0].startsWith("log "));
    }

    void rebuildingAddsWhatTheEmulatorKnows()
    {
        setListed(listed);
        const int rows = model().rowCount();
        model().add({"mine", "own", "n", {}});
        QSignalSpy asked(m_list.get(), &Bioslist::asked);
        QTest::mouseClick(m_panel->rebuildButton, Qt::LeftButton);
        QVERIFY(m_list->isAsking() && !m_panel->rebuildButton->isEnabled());
        QTRY_COMPARE(asked.count(), 1);
        QVERIFY(!m_list->isAsking() && m_panel->rebuildButton->isEnabled());
        QCOMPARE(model().rowCount(), rows + 2);
        QCOMPARE(model().entry(model().index(rows, 0))->bios, QStringLiteral("mine"));
        QCOMPARE(model().entry(model().index(rows + 1, 0))->rom, QStringLiteral("newbios"));
        QVERIFY(keptTitles(*m_defaults, growingBiosSets).isEmpty());
        make();
        QCOMPARE(model().rowCount(), rows + 2);
    }

    void theNamesOfTheSelectedGameAreLearntOnce()
    {
        setListed(listed);
        for (int i = 1; i <= 2; ++i) {
            QSignalSpy asked(m_list.get(), &Bioslist::asked);
            QTest::mouseClick(m_panel->gameButton, Qt::LeftButton);
            QTRY_COMPARE(asked.count(), 1);
            // The other one is shipped.
            QCOMPARE(keptTitles(*m_defaults, growingBiosSets), QStringList{"n1"});
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
        m_emulator = emulator;
        qunsetenv("FAKE_LISTXML");
        qputenv("FAKE_THEN", "exit3");
        QSignalSpy asked(m_list.get(), &Bioslist::asked);
        m_list->rebuild();
        QTRY_COMPARE(asked.count(), 1);
        qunsetenv("FAKE_THEN");
        QVERIFY2(info().startsWith(text), qPrintable(info()));
        QCOMPARE(m_desktop->takeTranscript(), QStringList{"beep"});
        QCOMPARE(model().rowCount(), 22);
    }

    void withoutAnEmulatorOrAGameItBeeps()
    {
        m_game = QStringLiteral("-version");
        m_list->addOfGame();
        m_game.clear();
        m_list->addOfGame();
        m_emulator.clear();
        m_list->rebuild();
        QVERIFY(!m_list->isAsking());
        QCOMPARE(m_desktop->takeTranscript(), (QStringList{"beep", "beep", "beep"}));
    }

    void theCommandShowsAndHidesThePanel()
    {
        m_list->ViewBiosList();
        QVERIFY(m_panel->isVisible());
        m_list->ViewBiosList();
        QVERIFY(!m_panel->isVisible());
    }

private:
    QString ownFile() const { return m_folder->filePath("bioslist.xml"); }
    QString info() const { return m_panel->text_infomation->text(); }
    BiosModel& model() { return *m_panel->treeController_list; }
    void select(const QModelIndex& index) { m_panel->biosView->setCurrentIndex(index); }

    void make()
    {
        m_list.reset();
        m_panel = std::make_unique<BiosPanel>();
        m_list
            = std::make_unique<Bioslist>(BiosParts{*m_desktop, *m_defaults, *m_panel, *m_popup, ownFile(),
                                                   [this] { return m_emulator; }, [this] { return m_game; }});
        m_list->awakeFromNib();
    }

    void setListed(const char* text)
    {
        QFile file(m_folder->filePath("list.xml"));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) > 0);
        qputenv("FAKE_LISTXML", QFile::encodeName(file.fileName()));
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<test::ScriptedDesktop> m_desktop;
    std::unique_ptr<UserDefaults> m_stored;
    std::unique_ptr<DefaultsController> m_defaults;
    std::unique_ptr<QComboBox> m_popup;
    std::unique_ptr<BiosPanel> m_panel;
    std::unique_ptr<Bioslist> m_list;
    QString m_emulator;
    QString m_game;
};

TESSERA_TEST(BioslistTest);
#include "bioslisttest.moc"
