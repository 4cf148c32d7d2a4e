#include "tools/ui/existencepage.h"

#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "widgets/boundcontrols.h"
#include "widgets/pathfield.h"

#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

ExistencePage::ExistencePage(DefaultsController& defaults, QWidget* parent)
    : ToolPage(parent)
    , button_check2(new QPushButton(qtTrId("existence_check"), this))
    , button_save(new QPushButton(qtTrId("existence_save"), this))
    , rows(new RowsModel({qtTrId("existence_set"), qtTrId("existence_existence")}, this))
    , reportList(new RowsList(*rows, QStringLiteral("reportList"), this))
{
    addHeading(qtTrId("existence_page"), qtTrId("existence_explanation"));
    const PathField* listfull
        = addPath(qtTrId("tool_listfull"), QStringLiteral("listfullTextField2"), QStringLiteral("listfull2"));
    const PathField* roms
        = addPath(qtTrId("tool_roms"), QStringLiteral("rompathTextField2"), QStringLiteral("rompath2"));
    listfullTextField2 = listfull->field();
    button_listfull2 = listfull->chooseButton();
    reveal_listfull2 = listfull->revealButton();
    rompathTextField2 = roms->field();
    button_rompath2 = roms->chooseButton();
    reveal_rompath2 = roms->revealButton();
    button_check2->setObjectName(QStringLiteral("button_check2"));
    button_save->setObjectName(QStringLiteral("button_save"));
    reportList->setAccessibleName(qtTrId("existence_page"));
    reportList->setEmptyText(qtTrId("existence_empty"));
    addWide(reportList, 1);

    bind(*listfullTextField2, defaults, keys::listfullPath);
    bind(*rompathTextField2, defaults, keys::RomsPath);
}

} // namespace tessera
