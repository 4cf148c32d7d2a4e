#include "launch/ui/filespage.h"

#include "core/failure.h"
#include "launch/ui/folderproposal.h"
#include "launch/ui/pathchooser.h"
#include "widgets/boundcontrols.h"
#include "widgets/pathfield.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

namespace {

PathField* makePath(const char* labelKey, const char* fieldName, const char* buttonName)
{
    auto* path = new PathField(qtTrId(labelKey), qtTrId("path_choose"), qtTrId("path_reveal"));
    path->field()->setObjectName(QLatin1String(fieldName));
    path->chooseButton()->setObjectName(QLatin1String(buttonName));
    return path;
}

} // namespace

FilesPage::FilesPage(DefaultsController& defaults, PathChooser& chooser, QWidget* parent)
    : FormPage(parent)
    , snapPath(makePath(textKey("files_snapshots"), "snapTextField", "buttonsnap"))
    , titlesnapPath(makePath(textKey("files_titles"), "titlesnapTextField", "buttontitle"))
    , flyerPath(makePath(textKey("files_flyers"), "flyerTextField", "buttonflayer"))
    , historyPath(makePath(textKey("files_history"), "historyTextField", "buttonhistory"))
    , mameinfoPath(makePath(textKey("files_mameinfo"), "mameinfoTextField", "buttonmameinfo"))
    , snapProposal(new FolderProposal("snapProposal", qtTrId("snaps_proposed")))
{
    addHeading(qtTrId("files_heading"), qtTrId("files_explanation"));
    const auto add = [&](PathField* path, const ChosenKey& key, auto select) {
        addRow(path->field()->accessibleName(), path);
        bind(*path->field(), defaults, key);
        connect(path->chooseButton(), &QPushButton::clicked, &chooser, select);
    };
    add(snapPath, keys::SnapPath, &PathChooser::selectSnapfolder);
    add(titlesnapPath, keys::TitlesnapPath, &PathChooser::selectTitlefolder);
    add(flyerPath, keys::GameflyersPath, &PathChooser::selectFryerfolder);
    addRow(QString(), snapProposal);
    addLine();
    add(historyPath, keys::HistoryPath, &PathChooser::selectHistorybat);
    add(mameinfoPath, keys::MameinfoPath, &PathChooser::selectMameinfobat);
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
