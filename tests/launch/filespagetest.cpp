#include "launch/ui/filespage.h"

#include "launch/launchroom.h"
#include "launch/ui/effectspage.h"
#include "launch/ui/folderproposal.h"
#include "launch/ui/generalpage.h"
#include "launch/ui/miscpage.h"
#include "support/testmain.h"
#include "widgets/pathfield.h"

#include <QAbstractButton>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

using namespace tessera;

namespace {

// The pages of paths, shown before a scripted desktop.
struct Room : test::Room {
    FilesPage files{defaults, chooser};

    Room()
    {
        pages.setChooser(chooser);
        pages.general().show();
    }
    QString place(const QString& name)
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::WriteOnly) ? file.fileName() : QString();
    }
};

} // namespace

/// Paths of the preferences: choosing them, showing them in the file manager, taking what is proposed.
class FilesPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPathIsChosenByItsButton()
    {
        Room room;
        const std::array paths{room.files.snapPath, room.files.titlesnapPath, room.files.flyerPath,
                               room.files.historyPath, room.files.mameinfoPath};
        const std::array keys{keys::SnapPath, keys::TitlesnapPath, keys::GameflyersPath, keys::HistoryPath,
                              keys::MameinfoPath};
        for (std::size_t i = 0; i < paths.size(); ++i) {
            const QString chosen = QStringLiteral("/chosen/%1").arg(i);
            room.desktop.answerOpen(chosen);
            paths[i]->chooseButton()->click();
            QCOMPARE(room.settings.string(keys[i].name), chosen);
            QCOMPARE(paths[i]->field()->text(), chosen);
        }
    }

    void everyPathIsShownByItsButton()
    {
        Room room;
        for (const PathField* path : {room.files.snapPath, room.files.titlesnapPath, room.files.flyerPath,
                                      room.pages.general().romsPath}) {
            path->revealButton()->click();
            QCOMPARE(room.desktop.takeTranscript(), QStringList("beep"));
            path->field()->setText(room.folder.path());
            path->revealButton()->click();
            QCOMPARE(room.desktop.takeTranscript(), QStringList("folder " + room.folder.path()));
        }
        const std::array files{room.pages.general().exePath, room.pages.general().osxPath,
                               room.pages.general().appPath, room.files.historyPath, room.files.mameinfoPath};
        const std::array keys{keys::ExecutionPath, keys::MameosxPath, keys::ApplicationPath,
                              keys::HistoryPath, keys::MameinfoPath};
        for (std::size_t i = 0; i < files.size(); ++i) {
            const QString path = room.place(QStringLiteral("file%1").arg(i));
            room.defaults.setText(keys[i], path);
            files[i]->revealButton()->click();
            QCOMPARE(room.desktop.takeTranscript(), QStringList("reveal " + path));
        }
    }

    void snapshotsAreProposedUntilTheirFolderIsChosen()
    {
        Room room;
        FolderProposal& proposal = *room.files.snapProposal;
        QVERIFY(proposal.isHidden());
        proposal.setFolders({"/mame/snap"});
        QVERIFY(!proposal.isHidden());
        proposal.findChild<QPushButton*>()->click();
        QCOMPARE(room.settings.string(keys::SnapPath.name), QStringLiteral("/mame/snap"));
        QVERIFY(proposal.isHidden());
        room.files.snapPath->field()->clear();
        QVERIFY(!proposal.isHidden());
    }

    void aChosenSnapshotFolderNeedsNoProposal()
    {
        Room room;
        room.defaults.setText(keys::SnapPath, "/mine");
        const FilesPage page(room.defaults, room.chooser);
        page.snapProposal->setFolders({"/mame/snap"});
        QVERIFY(page.snapProposal->isHidden());
    }

    void romFoldersAreProposedUntilOneIsChosen()
    {
        Room room;
        const GeneralPage& general = room.pages.general();
        QVERIFY(general.romProposal->isHidden());
        room.pages.general().proposeRomFolders({"/mame/roms", "/more"});
        QVERIFY(!general.romProposal->isHidden());
        general.romProposal->findChildren<QPushButton*>().at(1)->click();
        QCOMPARE(room.settings.string(keys::RomsPath.name), QStringLiteral("/more"));
        QVERIFY(general.romProposal->isHidden());
        QVERIFY(!general.rompathNote->isHidden());
        general.romsTextField->clear();
        QVERIFY(!general.romProposal->isHidden());
        QVERIFY(general.rompathNote->isHidden());
    }

    // The emulator may have answered before the page is first shown.
    void romFoldersThatAreKnownEarlyAreProposedToo()
    {
        test::Room room;
        room.pages.setChooser(room.chooser);
        GeneralPage& general = room.pages.general();
        general.proposeRomFolders({"/mame/roms"});
        QVERIFY(general.romProposal == nullptr);
        general.show();
        QVERIFY(!general.romProposal->isHidden());
        QCOMPARE(general.romProposal->findChildren<QPushButton*>().size(), 1);
    }

    // A field that is being typed in does not follow its setting, but what is chosen for it.
    void whatIsChosenTakesThePlaceOfWhatIsTyped()
    {
        Room room;
        room.pages.misc().show();
        room.pages.effects().show();
        const GeneralPage& general = room.pages.general();
        const std::vector<std::pair<QLineEdit*, void (PathChooser::*)()>> choosers{
            {general.exeTextField, &PathChooser::exeSelect},
            {general.osxTextField, &PathChooser::osxSelect},
            {general.appTextField, &PathChooser::appSelect},
            {general.romsTextField, &PathChooser::romfolSelect},
            {room.pages.misc().textfildPlayback, &PathChooser::playbackfileSelect},
            {room.pages.effects().effectTextField, &PathChooser::effectfileSelect}};
        for (const auto& [field, select] : choosers) {
            field->window()->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(field->window()));
            field->setFocus();
            QTest::keyClicks(field, "typed");
            room.desktop.answerOpen(QStringLiteral("chosen"));
            (room.chooser.*select)();
            QCOMPARE(field->text(), QStringLiteral("chosen"));
        }
    }

    void saysWhenTheSettingsCannotBeWritten()
    {
        QTemporaryDir folder;
        QFile blocked(folder.filePath("file"));
        QVERIFY(blocked.open(QIODevice::WriteOnly));
        UserDefaults settings(folder.filePath("file/Tessera.ini"));
        DefaultsController defaults(settings);
        LaunchPages pages(defaults, [] { return QString(); });
        test::ScriptedDesktop desktop;
        PathChooser chooser(desktop, defaults, pages);
        QSignalSpy spy(&chooser, &PathChooser::statusMessage);
        desktop.answerOpen("/a/mame");
        chooser.exeSelect();
        QCOMPARE(spy.size(), 1);
        QCOMPARE(pages.general().exeTextField->text(), QStringLiteral("/a/mame"));
    }

    void aModeWithoutAFolderBeeps()
    {
        Room room;
        room.defaults.setText(keys::MameosxPath, "");
        for (const int mode : {-1, 1}) {
            room.pages.general().launchusingPop->setCurrentIndex(mode);
            room.chooser.openCurrentdir();
            QCOMPARE(room.desktop.takeTranscript(), QStringList("beep"));
        }
    }

    // What stands behind the buttons of a row stands in a column, and is reached in the order of the row.
    void theRecordingRowsAreAligned()
    {
        Room room;
        MiscPage& misc = room.pages.misc();
        misc.show();
        for (const QButtonGroup* matrix : {misc.recordMatrix, misc.replayMatrix}) {
            QSet<int> widths;
            int widest = 0;
            for (const QAbstractButton* button : matrix->buttons()) {
                widths << button->minimumWidth();
                widest = std::max(widest, button->sizeHint().width());
            }
            QCOMPARE(widths, QSet<int>({widest}));
        }
        for (const char* field : {"wavnameTextField", "avinameTextField", "textfildPlayback"}) {
            const QWidget* next = misc.findChild<QLineEdit*>(QLatin1String(field))->nextInFocusChain();
            while ((next->focusPolicy() & Qt::TabFocus) == 0)
                next = next->nextInFocusChain();
            QCOMPARE(next->objectName(), QLatin1String(field) + "_choose");
        }
    }
};

TESSERA_TEST(FilesPageTest);
#include "filespagetest.moc"
