#include "artwork/ui/picturepane.h"

#include "artwork/ui/aspectview.h"
#include "widgets/named.h"
#include "widgets/toolbutton.h"

#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

namespace tessera {

PicturePane::PicturePane(DefaultsController& defaults, QWidget* parent)
    : QWidget(parent)
    , imageView(named("imageView", new AspectView(defaults), qtTrId("artwork_picture")))
    , shotTextField(named("shotTextField", withRole("dim", new QLabel)))
    , buttonShot(named("buttonShot", toolButton(QStringLiteral("nextpicture"), qtTrId("artwork_next"))))
    , aspectPop(named("PopUpButton_aspect", withRole("quiet", new QComboBox), qtTrId("aspect_ratio")))
{
    withRole("panel", this);
    setAttribute(Qt::WA_StyledBackground);
    imageView->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    buttonShot->setPopupMode(QToolButton::MenuButtonPopup);
    buttonShot->setMenu(new QMenu(buttonShot));
    aspectPop->setToolTip(qtTrId("aspect_ratio"));

    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(shotTextField);
    row->addWidget(buttonShot);
    row->addStretch(1);
    row->addWidget(aspectPop);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 12, 12, 4);
    layout->setSpacing(8);
    layout->addWidget(imageView, 1);
    layout->addLayout(row);
}

} // namespace tessera
