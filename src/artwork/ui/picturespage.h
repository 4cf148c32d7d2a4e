#pragma once

#include "artwork/artworkkinds.h"
#include "widgets/formpage.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;

namespace tessera {

class DefaultsController;
class PathField;

/// The settings of pictures: where they are, how they are shown, where they are fetched from.
class PicturesPage : public FormPage
{
    Q_OBJECT

public:
    explicit PicturesPage(DefaultsController& defaults, QWidget* parent = nullptr);

    /// The title of the user's own site.
    static constexpr QLatin1StringView ownSite{"Other site"};

    QComboBox* screenfolderPop; ///< the kind that is shown
    std::array<PathField*, artworkKinds.size()> folderFields; ///< by kind
    QPushButton* mameFolderButton; ///< takes the folder that MAME itself puts its snapshots into
    QCheckBox* checkboxSuppress;
    QCheckBox* wholeStepsBox;
    QComboBox* snapdownsitePop;
    QLineEdit* hostField;
    QLineEdit* snapdownTextField;
    QLineEdit* titlesdownTextField;
    QLineEdit* flyersdownTextField;

    /// By kind.
    std::array<QLineEdit*, artworkKinds.size()> templateFields() const
    {
        return {snapdownTextField, titlesdownTextField, flyersdownTextField};
    }
    /// Proposes a folder for snapshots; an empty one proposes nothing.
    void proposeSnapFolder(const QString& folder);

private:
    void addFolders(DefaultsController& defaults);
    void addSites(DefaultsController& defaults);
};

} // namespace tessera
