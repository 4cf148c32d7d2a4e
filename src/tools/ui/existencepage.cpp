#include "tools/ui/existencepage.h"

#include "tools/ui/foundbar.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "widgets/boundcontrols.h"
#include "widgets/pathfield.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

ExistencePage::ExistencePage(DefaultsController& defaults, QWidget* parent)
    : ToolPage(parent)
    , button_csv(new QPushButton(qtTrId("existence_csv"), this))
    , button_ask2(new QPushButton(qtTrId("tool_from_mame"), this))
    , button_check2(new QPushButton(qtTrId("existence_check"), this))
    , button_save(new QPushButton(qtTrId("existence_save"), this))
    , filterField(new QLineEdit(this))
    , foundBar(new FoundBar(this))
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
    button_ask2->setObjectName(QStringLiteral("button_ask2"));
    button_ask2->setToolTip(qtTrId("existence_ask_tip"));
    button_csv->setObjectName(QStringLiteral("button_csv"));
    filterField->setObjectName(QStringLiteral("filterField"));
    filterField->setAccessibleName(qtTrId("existence_filter"));
    filterField->setPlaceholderText(qtTrId("existence_filter"));
    addWide(foundBar, 0);
    auto* line = new QWidget(this);
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(filterField, 1);
    layout->addWidget(button_csv);
    addWide(line, 0);
    connect(filterField, &QLineEdit::textChanged, rows, &RowsModel::setFilter);
    button_check2->setObjectName(QStringLiteral("button_check2"));
    button_save->setObjectName(QStringLiteral("button_save"));
    reportList->setAccessibleName(qtTrId("existence_page"));
    reportList->setEmptyText(qtTrId("existence_empty"));
    addWide(reportList, 1);

    bind(*listfullTextField2, defaults, keys::listfullPath);
    bind(*rompathTextField2, defaults, keys::RomsPath);
}

} // namespace tessera
