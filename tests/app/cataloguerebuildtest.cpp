#include "stagedapp.h"

#include "app/desks/cataloguerebuild.h"
#include "app/desks/changesdesk.h"
#include "app/windows/mainwindow.h"
#include "app/windows/rebuildstrip.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/searchfield.h"
#include "support/writestore.h"
#include "support/installedtexts.h"
#include "support/testmain.h"
#include "tools/ui/changeswindow.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMenuBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTabBar>

#include <algorithm>

using namespace tessera;
using test::StagedApp;

namespace {

constexpr char twoMachines[]
    = "<?xml version=\"1.0\"?>\n<mame build=\"0.1\">\n"
      "\t<machine name=\"pacman\" sourcefile=\"pacman.cpp\">\n"
      "\t\t<description>Pac-Man</description>\n\t\t<year>1980</year>\n"
      "\t\t<manufacturer>Namco</manufacturer>\n\t\t<driver status=\"good\" emulation=\"good\"/>\n"
      "\t</machine>\n"
      "\t<machine name=\"puckman\" sourcefile=\"pacman.cpp\" cloneof=\"pacman\" romof=\"pacman\">\n"
      "\t\t<description>Puck Man</description>\n\t\t<year>1980</year>\n"
      "\t\t<manufacturer>Namco</manufacturer>\n\t\t<driver status=\"good\" emulation=\"good\"/>\n"
      "\t</machine>\n</mame>\n";

// An emulator that lists the two machines; `after` is what it does then.
QString makeEmulator(const StagedApp& staged, const QByteArray& after = "exit 0")
{
    const QString list = staged.path(QStringLiteral("list.xml"));
    QFile listFile(list);
    if (!listFile.open(QIODevice::WriteOnly) || listFile.write(twoMachines) < 0)
        qFatal("no list");
    const QString program = staged.path(QStringLiteral("mame"));
    QFile script(program);
    if (!script.open(QIODevice::WriteOnly)
        || script.write("#!/bin/sh\n[ \"$1\" = -listxml ] || exit 1\ncat '" + list.toUtf8() + "'\n" + after
                        + '\n')
            < 0)
        qFatal("no emulator");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner);
    return program;
}

QString message(const StagedApp& staged)
{
    return staged.app->mainWindow().findChild<QLabel*>(QStringLiteral("messageLabel"))->text();
}

QStringList keptCopies(const StagedApp& staged)
{
    return QDir(staged.path(QStringLiteral("data"))).entryList({QStringLiteral("Tessera *.xml")});
}

// A catalogue of one machine that the staged one has too.
QString writeOther(const StagedApp& staged)
{
    const GameRecord pong{{"game", "pong", "pong", "Pong", "Pong", "1972", "Atari", "good", ""}};
    const QString file = staged.path(QStringLiteral("other.xml"));
    if (!writeStore(file, std::array{pong}))
        qFatal("no store");
    return file;
}

QLineEdit* editorOf(const StagedApp& staged)
{
    return staged.app->mainWindow().gameTable->viewport()->findChild<QLineEdit*>();
}

// In every way that there is.
void tryToEdit(StagedApp& staged)
{
    GameTableView* table = staged.app->mainWindow().gameTable;
    const QModelIndex title = table->model()->index(0, 1);
    QVERIFY(QTest::qWaitForWindowExposed(&staged.app->mainWindow()));
    table->setFocus();
    table->setCurrentIndex(title);
    QTest::keyClick(table, Qt::Key_F2);
    QVERIFY(editorOf(staged) == nullptr);
    for (const char* command : {"menu_editcell", "menu_undo", "menu_redo"}) {
        auto* action = staged.app->mainWindow().menuBar()->findChild<QAction*>(QLatin1String(command));
        QVERIFY2(action != nullptr, command);
        action->trigger();
    }
    QVERIFY(editorOf(staged) == nullptr);
    QTest::ignoreMessage(QtWarningMsg, "edit: editing failed");
    table->edit(title);
    QVERIFY(editorOf(staged) == nullptr);
    QVERIFY(!table->model()->flags(title).testFlag(Qt::ItemIsEditable));
    QVERIFY(!table->model()->setData(title, QStringLiteral("Edited"), Qt::EditRole));
}

} // namespace

class CatalogueRebuildTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFirstStartBuildsTheCatalogue()
    {
        StagedApp staged;
        staged.useEmulator(makeEmulator(staged));
        staged.expectMissingStore(0);
        staged.start();
        QTRY_COMPARE(staged.app->gameList().list().size(), std::size_t(2));
        QVERIFY(staged.app->mainWindow().gameTable->isVisible());
        QVERIFY(staged.store().contains("Pac-Man"));
        QVERIFY(!staged.defaults.string(keys::BuiltFrom.name).isEmpty());
        QVERIFY(!staged.app->mainWindow().rebuildStrip->isVisible());
        QVERIFY(!staged.app->rebuild().isRunning());
    }

    void anUnreadableStoreIsReplacedAndKept()
    {
        StagedApp staged;
        staged.writeStore("no store at all");
        staged.useEmulator(makeEmulator(staged));
        staged.desktop.answerError(QString(), 0);
        staged.start();
        QTRY_COMPARE(staged.app->gameList().list().size(), std::size_t(2));
        QCOMPARE(keptCopies(staged), QStringList{QStringLiteral("Tessera 2026-01-02 03-04-05.xml")});
        // What was unreadable is not a reason to refuse saving any longer.
        staged.app->catalogue().setValue(0, Field::Title, QStringLiteral("Edited"));
        staged.app->saveAction();
        QVERIFY(staged.store().contains("Edited"));
    }

    void theMenuCommandKeepsTheOldFileAndClearsUndo()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.useEmulator(makeEmulator(staged));
        staged.start();
        const QByteArray old = staged.store();
        staged.app->rebuildCatalogue();
        QTRY_COMPARE(staged.app->gameList().list().size(), std::size_t(2));
        QVERIFY(!staged.app->catalogue().undoStack().canUndo());
        QCOMPARE(keptCopies(staged).size(), 1);
        QFile kept(staged.path(QStringLiteral("data/")) + keptCopies(staged).constFirst());
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), old);
    }

    void whatChangedIsSaidAndShown()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.useEmulator(makeEmulator(staged));
        staged.start();
        QPushButton* button = staged.app->mainWindow().changesButton;
        QVERIFY(!button->isVisible());
        CatalogueComparison comparison;
        connect(&staged.app->rebuild(), &CatalogueRebuild::compared, this,
                [&](const CatalogueComparison& changes) { comparison = changes; });
        staged.app->rebuildCatalogue();
        QTRY_VERIFY(!comparison.changes.empty());
        QCOMPARE(comparison.count(MachineChange::Kind::Added), std::size_t(2));
        QCOMPARE(comparison.count(MachineChange::Kind::Gone), std::size_t(4));
        QVERIFY2(message(staged).endsWith("changes_summary rebuild_kept"), qPrintable(message(staged)));
        QVERIFY(button->isVisible());
        QTest::mouseClick(button, Qt::LeftButton);
        ChangesWindow& window = staged.app->changes().window();
        QVERIFY(window.isVisible());
        const auto rows = [&] {
            QStringList list;
            for (int row = 0; row < window.rows->rowCount(); ++row)
                list << QString::fromStdString(window.rows->visible(row).name) + ' '
                        + window.rows->visible(row).state;
            return list;
        };
        QCOMPARE(window.kinds->count(), 2);
        QVERIFY2(rows().contains("pacman Pac-Man"), qPrintable(rows().join('\n')));
        // A row shows its machine, also one that a search hides.
        staged.app->mainWindow().searchField->setText("nothing");
        QTRY_COMPARE(staged.app->gameList().list().size(), std::size_t(0));
        Q_EMIT window.changes->opened("pacman");
        QCOMPARE(staged.app->gameList().selectedCount(), 1);
        window.kinds->setCurrentIndex(1);
        QVERIFY2(rows().contains("qix Qix"), qPrintable(rows().join('\n')));
        Q_EMIT window.changes->opened("qix");
        QVERIFY(staged.desktop.takeTranscript().contains("beep"));
    }

    void theFirstCatalogueIsComparedWithNothing()
    {
        StagedApp staged;
        staged.useEmulator(makeEmulator(staged));
        staged.expectMissingStore(0);
        staged.start();
        QTRY_COMPARE(staged.app->gameList().list().size(), std::size_t(2));
        QCOMPARE(message(staged), "rebuild_done");
        QVERIFY(!staged.app->mainWindow().changesButton->isVisible());
    }

    void aFileTakesTheCataloguesPlace()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.defaults.setValue(keys::BuiltFrom.name, "an emulator");
        staged.start();
        const QByteArray old = staged.store();
        const QString file = writeOther(staged);
        const auto changes = staged.app->rebuild().useFile(file);
        QVERIFY(changes);
        QCOMPARE(*changes, "catalogue_used changes_summary rebuild_kept");
        QCOMPARE(message(staged), *changes);
        QCOMPARE(staged.app->gameList().list().size(), std::size_t(1));
        QCOMPARE(keptCopies(staged), QStringList{QStringLiteral("Tessera 2026-01-02 03-04-05.xml")});
        QFile kept(staged.path(QStringLiteral("data/")) + keptCopies(staged).constFirst());
        QVERIFY(kept.open(QIODevice::ReadOnly));
        QCOMPARE(kept.readAll(), old);
        QCOMPARE(staged.defaults.string(keys::BuiltFrom.name), QString());
        QVERIFY(QFile::exists(file));
    }

    void aFileIsAskedAboutBeforeItDropsEdits()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        const QByteArray old = staged.store();
        staged.app->catalogue().setValue(0, Field::Title, QStringLiteral("Edited"));
        const QString file = writeOther(staged);
        staged.desktop.answerAlert("catalogue_unsaved_message", 1);
        QVERIFY(!staged.app->rebuild().useFile(file));
        QCOMPARE(staged.store(), old);
        QVERIFY(staged.app->catalogue().hasChanges());
        staged.desktop.answerAlert("catalogue_unsaved_message", 0);
        QVERIFY(staged.app->rebuild().useFile(file));
        QVERIFY(!staged.app->catalogue().hasChanges());
        QCOMPARE(staged.app->gameList().list().size(), std::size_t(1));
    }

    void aFileThatIsNoCatalogueTakesNoPlace()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        const QByteArray old = staged.store();
        const QString file = staged.path("broken.xml");
        QFile broken(file);
        QVERIFY(broken.open(QIODevice::WriteOnly));
        broken.write("no store");
        broken.close();
        staged.desktop.answerError(QString());
        QVERIFY(!staged.app->rebuild().useFile(file));
        QCOMPARE(staged.store(), old);
        QVERIFY(keptCopies(staged).isEmpty());
        QCOMPARE(staged.app->gameList().list().size(), std::size_t(4));
    }

    void aFileOfAnotherModelTakesNoPlace()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        const QByteArray old = staged.store();
        const QString file = staged.path("plants.xml");
        QFile foreign(file);
        QVERIFY(foreign.open(QIODevice::WriteOnly));
        foreign.write("<database><object type=\"Plant\" id=\"z102\"/></database>");
        foreign.close();
        staged.desktop.answerError(QStringLiteral("failure_store_model"));
        QVERIFY(!staged.app->rebuild().useFile(file));
        QCOMPARE(staged.store(), old);
        QCOMPARE(staged.app->gameList().list().size(), std::size_t(4));
    }

    void aFileThatWasSavedInPlaceIsReadAnew()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QVERIFY(QFile::remove(staged.storePath()) && QFile::copy(writeOther(staged), staged.storePath()));
        QVERIFY(staged.app->rebuild().useFile(staged.storePath()));
        QVERIFY(keptCopies(staged).isEmpty());
        QCOMPARE(staged.app->gameList().list().size(), std::size_t(1));
    }

    void unsavedEditsAreAskedAboutFirst()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.useEmulator(makeEmulator(staged));
        staged.start();
        staged.app->catalogue().setValue(0, Field::Title, QStringLiteral("Unsaved"));
        staged.desktop.answerAlert(QStringLiteral("rebuild_unsaved_message"), 1);
        staged.app->rebuildCatalogue();
        QVERIFY(!staged.app->rebuild().isRunning());
        QVERIFY(staged.app->catalogue().hasChanges());

        staged.desktop.answerAlert(QStringLiteral("rebuild_unsaved_message"), 0);
        staged.app->rebuildCatalogue();
        QTRY_COMPARE(staged.app->gameList().list().size(), std::size_t(2));
        QVERIFY(!staged.app->catalogue().hasChanges());
    }

    void theSameEmulatorIsSaid()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.useEmulator(makeEmulator(staged));
        staged.start();
        staged.app->rebuildCatalogue();
        QTRY_VERIFY(!staged.app->rebuild().isRunning());
        staged.desktop.answerAlert(QStringLiteral("rebuild_same_message"), 1);
        staged.app->rebuildCatalogue();
        QVERIFY(!staged.app->rebuild().isRunning());
    }

    void aChangedEmulatorIsOfferedInTheStatusLine()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.useEmulator(makeEmulator(staged));
        staged.start();
        QVERIFY(!staged.app->mainWindow().rebuildButton->isVisible());
        staged.app->rebuildCatalogue();
        QTRY_VERIFY(!staged.app->rebuild().isRunning());
        staged.app.reset();

        staged.start();
        QVERIFY(!staged.app->mainWindow().rebuildButton->isVisible());
        staged.app.reset();

        makeEmulator(staged, "exit 0 # another one now");
        staged.start();
        QVERIFY(staged.app->mainWindow().rebuildButton->isVisible());
        staged.app->mainWindow().rebuildButton->click();
        QVERIFY(staged.app->rebuild().isRunning());
        QTRY_VERIFY(!staged.app->rebuild().isRunning());
        QVERIFY(!staged.app->mainWindow().rebuildButton->isVisible());
    }

    void theOfferStandsAgainAfterACancelledRebuild()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.useEmulator(makeEmulator(staged));
        staged.start();
        staged.app->rebuildCatalogue();
        QTRY_VERIFY(!staged.app->rebuild().isRunning());
        staged.app.reset();
        makeEmulator(staged, "sleep 20");
        staged.start();
        staged.app->mainWindow().rebuildButton->click();
        QVERIFY(!staged.app->mainWindow().rebuildButton->isVisible());
        staged.app->rebuild().cancel();
        QTRY_VERIFY(!staged.app->rebuild().isRunning());
        QVERIFY(staged.app->mainWindow().rebuildButton->isVisible());
    }

    void theStripCountsTheMachines_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("program");
        QTest::addColumn<QString>("count");
        QTest::newRow("English") << QStringLiteral("en") << QStringLiteral("Building the catalogue from mame")
                                 << QStringLiteral("%1 machines");
        QTest::newRow("Japanese") << QStringLiteral("ja")
                                  << QStringLiteral("mame からカタログを作成しています")
                                  << QStringLiteral("%1 台");
    }

    void theStripCountsTheMachines()
    {
        QFETCH(QString, language);
        QFETCH(QString, program);
        QFETCH(QString, count);
        const test::InstalledTexts texts(language);
        StagedApp staged;
        staged.writeCatalogue();
        // What follows the last machine lets it be noticed.
        staged.useEmulator(makeEmulator(staged, "printf '%400s' .; sleep 20"));
        staged.start();
        staged.app->rebuildCatalogue();
        RebuildStrip* strip = staged.app->mainWindow().rebuildStrip;
        const auto* shown = strip->findChild<QLabel*>(QStringLiteral("rebuildCount"));
        QCOMPARE(shown->text(), count.arg(0));
        QTRY_COMPARE(shown->text(), count.arg(2));
        strip->showCount(45'294);
        QCOMPARE(shown->text(), count.arg(QLocale().toString(45'294)));
        const auto labels = strip->findChildren<QLabel*>();
        QVERIFY(std::ranges::any_of(labels, [&](const QLabel* label) { return label->text() == program; }));
        staged.app->rebuild().cancel();
        QTRY_VERIFY(!staged.app->rebuild().isRunning());
    }

    void cancellingLeavesTheOldCatalogue()
    {
        StagedApp staged;
        staged.writeCatalogue();
        const QByteArray old = staged.store();
        staged.useEmulator(makeEmulator(staged, "sleep 20"));
        staged.start();
        staged.app->rebuildCatalogue();
        RebuildStrip* strip = staged.app->mainWindow().rebuildStrip;
        QTRY_VERIFY(strip->isVisible());
        strip->findChild<QPushButton*>(QStringLiteral("rebuildCancel"))->click();
        QTRY_VERIFY(!staged.app->rebuild().isRunning());
        QVERIFY(!strip->isVisible());
        QCOMPARE(staged.store(), old);
        QCOMPARE(staged.app->gameList().list().size(), std::size_t(4));
        QCOMPARE(keptCopies(staged), QStringList());
    }

    void aFailureLeavesTheOldCatalogue()
    {
        StagedApp staged;
        staged.writeCatalogue();
        const QByteArray old = staged.store();
        staged.useEmulator(makeEmulator(staged, "exit 3"));
        staged.start();
        staged.desktop.answerError(QString());
        staged.app->rebuildCatalogue();
        QTRY_VERIFY(!staged.app->rebuild().isRunning());
        QCOMPARE(staged.store(), old);
        QCOMPARE(staged.app->gameList().list().size(), std::size_t(4));
        QCOMPARE(keptCopies(staged), QStringList());
        QCOMPARE(message(staged), QStringLiteral("rebuild_failed"));
    }

    void whileBuildingTheOldListIsNotEdited()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.useEmulator(makeEmulator(staged, "sleep 20"));
        staged.start();
        Catalogue& catalogue = staged.app->catalogue();
        catalogue.setValue(0, Field::Title, QStringLiteral("Kept"));
        catalogue.setValue(0, Field::Title, QStringLiteral("Undone"));
        staged.app->undo();
        staged.desktop.answerAlert(QStringLiteral("rebuild_unsaved_message"), 0);
        staged.app->rebuildCatalogue();
        QVERIFY(staged.app->rebuild().isRunning());
        tryToEdit(staged);
        QCOMPARE(catalogue.records()[0][Field::Title], std::string_view("Kept"));
        QCOMPARE(catalogue.undoStack().index(), 1);
        QCOMPARE(catalogue.undoStack().count(), 2);

        staged.app->rebuild().cancel();
        QTRY_VERIFY(!staged.app->rebuild().isRunning());
        QCOMPARE(staged.app->gameList().list().size(), std::size_t(4));
        staged.app->redo();
        QCOMPARE(catalogue.records()[0][Field::Title], std::string_view("Undone"));
        QTest::keyClick(staged.app->mainWindow().gameTable, Qt::Key_F2);
        QVERIFY(editorOf(staged) != nullptr);
        QTest::keyClick(editorOf(staged), Qt::Key_Escape);
    }

    void anEarlierChosenTitleListIsUsed()
    {
        StagedApp staged;
        QFile titles(staged.path(QStringLiteral("titles.lst")));
        QVERIFY(titles.open(QIODevice::WriteOnly));
        titles.write("pacman\tパックマン\tぱっくまん\tNamco\n");
        titles.close();
        staged.defaults.setValue(keys::localizePath.name, titles.fileName());
        staged.useEmulator(makeEmulator(staged));
        staged.expectMissingStore(0);
        staged.start();
        QTRY_VERIFY(staged.store().contains("パックマン"));
        QTRY_COMPARE(message(staged), QStringLiteral("rebuild_done"));
    }

    void aTitleListThatCannotBeReadIsSaid_data()
    {
        QTest::addColumn<QString>("titles");
        QTest::newRow("gone") << QStringLiteral("titles.lst");
        QTest::newRow("a folder") << QStringLiteral("data");
    }

    void aTitleListThatCannotBeReadIsSaid()
    {
        QFETCH(QString, titles);
        const test::InstalledTexts texts(QStringLiteral("en"));
        StagedApp staged;
        staged.writeCatalogue();
        staged.defaults.setValue(keys::localizePath.name, staged.path(titles));
        staged.useEmulator(makeEmulator(staged));
        staged.start();
        staged.app->rebuildCatalogue();
        QTRY_VERIFY(!staged.app->rebuild().isRunning());
        QCOMPARE(staged.app->gameList().list().size(), std::size_t(2));
        const QString sentences = QStringLiteral("The catalogue was built: 2 machines. Japanese titles are "
                                                 "missing: “%1” could not be read: ");
        QVERIFY2(message(staged).startsWith(sentences.arg(staged.path(titles))), qPrintable(message(staged)));
    }

    void settingsThatCannotBeWrittenAreSaidOnce()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QVERIFY(QFile::remove(staged.settingsPath()));
        QVERIFY(QDir().mkdir(staged.settingsPath()));
        staged.useEmulator(makeEmulator(staged));
        staged.app->rebuildCatalogue();
        QTRY_VERIFY(!staged.app->rebuild().isRunning());
        QCOMPARE(message(staged),
                 QStringLiteral("rebuild_done changes_summary rebuild_kept failure_settings"));

        QVERIFY(QDir().rmdir(staged.settingsPath()));
        staged.desktop.answerAlert(QStringLiteral("rebuild_same_message"), 0);
        staged.app->rebuildCatalogue();
        QTRY_VERIFY(!staged.app->rebuild().isRunning());
        QCOMPARE(message(staged), QStringLiteral("rebuild_done changes_none rebuild_kept"));
    }
};

TESSERA_TEST(CatalogueRebuildTest);
#include "cataloguerebuildtest.moc"
