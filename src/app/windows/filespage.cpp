#include "app/windows/filespage.h"

#include "core/message.h"
#include "launch/ui/folderproposal.h"
#include "launch/ui/pathchooser.h"
#include "launch/ui/pathrow.h"
#include "platform/defaultscontroller.h"
#include "widgets/pathfield.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QToolButton>

namespace tessera {

namespace {

constexpr PathRow snapRow{textKey("files_snapshots"), "snapTextField", "buttonsnap", keys::SnapPath,
                          &PathChooser::selectSnapfolder};
constexpr PathRow titleRow{textKey("files_titles"), "titlesnapTextField", "buttontitle", keys::TitlesnapPath,
                           &PathChooser::selectTitlefolder};
constexpr PathRow flyerRow{textKey("files_flyers"), "flyerTextField", "buttonflayer", keys::GameflyersPath,
                           &PathChooser::selectFryerfolder};
constexpr PathRow historyRow{textKey("files_history"), "historyTextField", "buttonhistory", keys::HistoryPath,
                             &PathChooser::selectHistorybat};
constexpr PathRow mameinfoRow{textKey("files_mameinfo"), "mameinfoTextField", "buttonmameinfo",
                              keys::MameinfoPath, &PathChooser::selectMameinfobat};

} // namespace

FilesPage::FilesPage(DefaultsController& defaults, PathChooser& chooser, QWidget* parent)
    : FormPage(parent)
{
    addHeading(qtTrId("files_heading"), qtTrId("files_explanation"));
    snapPath = addPathRow(*this, snapRow, defaults, chooser);
    titlesnapPath = addPathRow(*this, titleRow, defaults, chooser);
    flyerPath = addPathRow(*this, flyerRow, defaults, chooser);
    snapProposal = new FolderProposal("snapProposal", qtTrId("snaps_proposed"));
    addRow(QString(), snapProposal);
    addLine();
    historyPath = addPathRow(*this, historyRow, defaults, chooser);
    mameinfoPath = addPathRow(*this, mameinfoRow, defaults, chooser);
    addStretch();

    const auto follow = [this] { snapProposal->setWanted(snapPath->field()->text().isEmpty()); };
    connect(snapPath->field(), &QLineEdit::textChanged, this, follow);
    connect(snapProposal, &FolderProposal::taken, this,
            [&defaults](const QString& folder) { defaults.setText(keys::SnapPath, folder); });
    follow();
    for (const PathField* path : {snapPath, titlesnapPath, flyerPath})
        connect(path->revealButton(), &QToolButton::clicked, &chooser,
                [&chooser, path] { chooser.openFolder(path->field()->text()); });
    connect(historyPath->revealButton(), &QToolButton::clicked, &chooser,
            [&chooser] { chooser.show_file_in_finder(PathChooser::historyTag); });
    connect(mameinfoPath->revealButton(), &QToolButton::clicked, &chooser,
            [&chooser] { chooser.show_file_in_finder(PathChooser::mameinfoTag); });
}

} // namespace tessera
