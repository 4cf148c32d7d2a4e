#include "app/windows/filespage.h"

#include "launch/launchroom.h"
#include "launch/ui/folderproposal.h"
#include "support/launchpage.h"
#include "support/rows.h"
#include "support/testmain.h"
#include "support/words.h"
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

constexpr const char* filesWords = R"(: files_heading
: files_explanation
: files_snapshots
: named files_snapshots
snapTextField: named files_snapshots
buttonsnap: path_choose / named path_choose: files_snapshots
: named path_reveal: files_snapshots / tip path_reveal
: files_titles
: named files_titles
titlesnapTextField: named files_titles
buttontitle: path_choose / named path_choose: files_titles
: named path_reveal: files_titles / tip path_reveal
: files_flyers
: named files_flyers
flyerTextField: named files_flyers
buttonflayer: path_choose / named path_choose: files_flyers
: named path_reveal: files_flyers / tip path_reveal
: for snapProposal
: snaps_proposed
: files_history
: named files_history
historyTextField: named files_history
buttonhistory: path_choose / named path_choose: files_history
: named path_reveal: files_history / tip path_reveal
: files_mameinfo
: named files_mameinfo
mameinfoTextField: named files_mameinfo
buttonmameinfo: path_choose / named path_choose: files_mameinfo
: named path_reveal: files_mameinfo / tip path_reveal)";

constexpr const char* filesRows = R"(files_heading:
files_explanation:
files_snapshots: snapTextField buttonsnap
files_titles: titlesnapTextField buttontitle
files_flyers: flyerTextField buttonflayer
: snapProposal
---
files_history: historyTextField buttonhistory
files_mameinfo: mameinfoTextField buttonmameinfo)";

// The pages of paths, shown before a scripted desktop.
struct Room : test::Room {
    FilesPage files{defaults, chooser};

    Room() { pages.general().show(); }
    // The path on the general page whose field has that name.
    PathField* path(const char* field)
    {
        QWidget* parent = test::control<QLineEdit>(pages, field)->parentWidget();
        return qobject_cast<PathField*>(parent);
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
    void thePageSaysWhatItIsAbout()
    {
        Room room;
        room.files.show();
        QCOMPARE(test::wordsOf(room.files), QString::fromLatin1(filesWords).split(u'\n'));
        QCOMPARE(test::rowsOf(room.files), QString::fromLatin1(filesRows).split(u'\n'));
    }

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
                                      room.path("romsTextField")}) {
            path->revealButton()->click();
            QCOMPARE(room.desktop.takeTranscript(), QStringList("beep"));
            path->field()->setText(room.folder.path());
            path->revealButton()->click();
            QCOMPARE(room.desktop.takeTranscript(), QStringList("folder " + room.folder.path()));
        }
        const std::array files{room.path("exeTextField"), room.path("osxTextField"),
                               room.path("appTextField"), room.files.historyPath, room.files.mameinfoPath};
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
        general.romProposal->setFolders({"/mame/roms", "/more"});
        QVERIFY(!general.romProposal->isHidden());
        general.romProposal->findChildren<QPushButton*>().at(1)->click();
        QCOMPARE(room.settings.string(keys::RomsPath.name), QStringLiteral("/more"));
        QVERIFY(general.romProposal->isHidden());
        const auto* note = general.findChild<QLabel*>("rompathNote");
        QVERIFY(!note->isHidden());
        general.romsTextField->clear();
        QVERIFY(!general.romProposal->isHidden());
        QVERIFY(note->isHidden());
    }

    // A field that is being typed in does not follow its setting, but what is chosen for it.
    void whatIsChosenTakesThePlaceOfWhatIsTyped()
    {
        Room room;
        test::pageOf(room.pages, Page::Misc).show();
        test::pageOf(room.pages, Page::Effects).show();
        const GeneralPage& general = room.pages.general();
        const std::vector<std::pair<QLineEdit*, void (PathChooser::*)()>> choosers{
            {general.exeTextField, &PathChooser::exeSelect},
            {test::control<QLineEdit>(room.pages, "osxTextField"), &PathChooser::osxSelect},
            {test::control<QLineEdit>(room.pages, "appTextField"), &PathChooser::appSelect},
            {general.romsTextField, &PathChooser::romfolSelect},
            {test::control<QLineEdit>(room.pages, "textfildPlayback"), &PathChooser::playbackfileSelect},
            {test::control<QLineEdit>(room.pages, "effectTextField"), &PathChooser::effectfileSelect}};
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
        test::StagedPages staged(defaults);
        QSignalSpy spy(&staged.chooser, &PathChooser::statusMessage);
        staged.desktop.answerOpen("/a/mame");
        staged.chooser.exeSelect();
        QCOMPARE(spy.size(), 1);
        QCOMPARE(staged.pages.general().exeTextField->text(), QStringLiteral("/a/mame"));
    }

    void aModeWithoutAFolderBeeps()
    {
        Room room;
        room.defaults.setText(keys::MameosxPath, "");
        for (const int mode : {-1, 1}) {
            room.defaults.setIndex(keys::Launchgamesusing, mode);
            room.chooser.openCurrentdir();
            QCOMPARE(room.desktop.takeTranscript(), QStringList("beep"));
        }
    }

    // What stands behind the buttons of a row stands in a column, and is reached in the order of the row.
    void theRecordingRowsAreAligned()
    {
        Room room;
        OptionPage& misc = test::pageOf(room.pages, Page::Misc);
        misc.show();
        for (const char* name : {"recordMatrix", "replayMatrix"}) {
            const auto* matrix = misc.findChild<QButtonGroup*>(QLatin1String(name));
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
