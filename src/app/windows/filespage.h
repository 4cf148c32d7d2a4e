#pragma once

#include "widgets/formpage.h"

namespace tessera {

class DefaultsController;
class FolderProposal;
class PathChooser;
class PathField;

/// Where the pictures of games lie, and the files of their history and notes.
class FilesPage : public FormPage
{
    Q_OBJECT

public:
    FilesPage(DefaultsController& defaults, PathChooser& chooser, QWidget* parent = nullptr);

    PathField* snapPath;
    PathField* titlesnapPath;
    PathField* flyerPath;
    PathField* historyPath;
    PathField* mameinfoPath;
    FolderProposal* snapProposal; ///< shown while no folder of snapshots is chosen
};

} // namespace tessera
