#include "artwork/ui/picturespage.h"

#include "artwork/picturesites.h"
#include "widgets/boundcontrols.h"
#include "widgets/named.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>

namespace tessera {

PicturesPage::PicturesPage(DefaultsController& defaults, QWidget* parent)
    : FormPage(parent)
    , screenfolderPop(named("screenfolderPop", new QComboBox))
    , checkboxSuppress(named("checkboxSuppress", new QCheckBox(qtTrId("pictures_suppress"))))
    , wholeStepsBox(named("wholeStepsBox", new QCheckBox(qtTrId("pictures_wholesteps"))))
    , snapdownsitePop(named("snapdownsitePop", new QComboBox))
    , hostField(makeField("picturesHostField", qtTrId("pictures_host")))
    , snapdownTextField(makeField("snapdownTextField", qtTrId("pictures_snaptemplate")))
    , titlesdownTextField(makeField("titlesdownTextField", qtTrId("pictures_titletemplate")))
    , flyersdownTextField(makeField("flyersdownTextField", qtTrId("pictures_flyertemplate")))
{
    addHeading(qtTrId("pictures_heading"), qtTrId("pictures_explanation"));
    addView(defaults);
    addLine();
    addSites(defaults);
    addStretch();
}

void PicturesPage::addView(DefaultsController& defaults)
{
    for (const ArtworkKind& kind : artworkKinds)
        screenfolderPop->addItem(kind.label);
    bind(*screenfolderPop, defaults, keys::Screenfolder);
    addRow(qtTrId("pictures_kind"), screenfolderPop);
    bind(*checkboxSuppress, defaults, keys::Suppress_PS);
    bind(*wholeStepsBox, defaults, keys::PictureWholeSteps);
    addRow(QString(), checkboxSuppress);
    addRow(QString(), wholeStepsBox);
}

void PicturesPage::addSites(DefaultsController& defaults)
{
    for (const WebSite& site : pictureSites)
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

} // namespace tessera
