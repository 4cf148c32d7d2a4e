#include "artwork/ui/picturespage.h"

#include "artwork/picturesites.h"
#include "widgets/boundcontrols.h"
#include "widgets/pathfield.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

namespace {

// By kind.
constexpr std::array folderNames{textKey("pictures_snapfolder"), textKey("pictures_titlefolder"),
                                 textKey("pictures_flyerfolder")};
constexpr std::array folderObjects{"snapTextField", "titlesnapTextField", "flyersTextField"};

QLineEdit* makeField(const char* objectName, const QString& name)
{
    auto* field = new QLineEdit;
    field->setObjectName(QLatin1String(objectName));
    field->setAccessibleName(name);
    return field;
}

QCheckBox* makeBox(const char* objectName, const char* text)
{
    auto* box = new QCheckBox(qtTrId(text));
    box->setObjectName(QLatin1String(objectName));
    return box;
}

} // namespace

PicturesPage::PicturesPage(DefaultsController& defaults, QWidget* parent)
    : FormPage(parent)
    , screenfolderPop(new QComboBox)
    , folderFields()
    , mameFolderButton(new QPushButton)
    , checkboxSuppress(makeBox("checkboxSuppress", textKey("pictures_suppress")))
    , wholeStepsBox(makeBox("wholeStepsBox", textKey("pictures_wholesteps")))
    , snapdownsitePop(new QComboBox)
    , hostField(makeField("picturesHostField", qtTrId("pictures_host")))
    , snapdownTextField(makeField("snapdownTextField", qtTrId("pictures_snaptemplate")))
    , titlesdownTextField(makeField("titlesdownTextField", qtTrId("pictures_titletemplate")))
    , flyersdownTextField(makeField("flyersdownTextField", qtTrId("pictures_flyertemplate")))
{
    addFolders(defaults);
    addLine();
    addSites(defaults);
    addStretch();
}

void PicturesPage::addFolders(DefaultsController& defaults)
{
    screenfolderPop->setObjectName(QStringLiteral("screenfolderPop"));
    for (const ArtworkKind& kind : artworkKinds)
        screenfolderPop->addItem(qtTrId(kind.label));
    bind(*screenfolderPop, defaults, keys::Screenfolder);
    addRow(qtTrId("pictures_kind"), screenfolderPop);
    for (std::size_t kind = 0; kind < artworkKinds.size(); ++kind) {
        auto* path = new PathField(qtTrId(folderNames[kind]), qtTrId("pictures_choose"),
                                   qtTrId("pictures_reveal"), this);
        path->field()->setObjectName(QLatin1String(folderObjects[kind]));
        bind(*path->field(), defaults, *artworkKinds[kind].folder);
        addRow(qtTrId(folderNames[kind]), path);
        folderFields[kind] = path;
        if (kind == 0)
            addRow(QString(), mameFolderButton);
    }
    mameFolderButton->setObjectName(QStringLiteral("mameFolderButton"));
    mameFolderButton->setProperty("role", QStringLiteral("link"));
    proposeSnapFolder({});
    bind(*checkboxSuppress, defaults, keys::Suppress_PS);
    bind(*wholeStepsBox, defaults, keys::PictureWholeSteps);
    addRow(QString(), checkboxSuppress);
    addRow(QString(), wholeStepsBox);
}

void PicturesPage::addSites(DefaultsController& defaults)
{
    snapdownsitePop->setObjectName(QStringLiteral("snapdownsitePop"));
    for (const PictureSite& site : pictureSites)
        snapdownsitePop->addItem(qtTrId("pictures_sitenumber").arg(site.number));
    snapdownsitePop->addItem(ownSite);
    bind(*snapdownsitePop, defaults, keys::Snapdownsite);
    addRow(qtTrId("pictures_site"), snapdownsitePop);
    addRow(qtTrId("pictures_host"), hostField);
    addRow(qtTrId("pictures_snaptemplate"), snapdownTextField);
    addRow(qtTrId("pictures_titletemplate"), titlesdownTextField);
    addRow(qtTrId("pictures_flyertemplate"), flyersdownTextField);
    addNote(qtTrId("pictures_note"));
}

void PicturesPage::proposeSnapFolder(const QString& folder)
{
    mameFolderButton->setVisible(!folder.isEmpty());
    mameFolderButton->setText(qtTrId("pictures_mamefolder").arg(folder));
    mameFolderButton->setProperty("folder", folder);
}

} // namespace tessera
