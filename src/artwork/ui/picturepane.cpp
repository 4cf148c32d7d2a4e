#include "artwork/ui/picturepane.h"

#include "artwork/ui/aspectview.h"
#include "widgets/toolbutton.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolButton>

namespace tessera {

PicturePane::PicturePane(DefaultsController& defaults, QWidget* parent)
    : QWidget(parent)
    , imageView(new AspectView(defaults))
    , shotTextField(new QLabel)
    , buttonShot(toolButton(QStringLiteral("nextpicture"), qtTrId("artwork_next")))
    , aspectPop(new QComboBox)
{
    setProperty("role", QStringLiteral("panel"));
    setAttribute(Qt::WA_StyledBackground);
    imageView->setObjectName(QStringLiteral("imageView"));
    imageView->setAccessibleName(qtTrId("artwork_picture"));
    imageView->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    shotTextField->setObjectName(QStringLiteral("shotTextField"));
    shotTextField->setProperty("role", QStringLiteral("dim"));
    buttonShot->setObjectName(QStringLiteral("buttonShot"));
    buttonShot->setPopupMode(QToolButton::MenuButtonPopup);
    buttonShot->setMenu(new QMenu(buttonShot));
    aspectPop->setObjectName(QStringLiteral("PopUpButton_aspect"));
    aspectPop->setAccessibleName(qtTrId("aspect_ratio"));
    aspectPop->setToolTip(qtTrId("aspect_ratio"));
    aspectPop->setProperty("role", QStringLiteral("quiet"));

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
