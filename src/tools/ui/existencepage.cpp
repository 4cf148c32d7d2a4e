#include "tools/ui/existencepage.h"

#include "tools/ui/foundbar.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "widgets/named.h"

#include <QLineEdit>
#include <QPushButton>

namespace tessera {

ExistencePage::ExistencePage(DefaultsController& defaults, QWidget* parent)
    : ToolPage(parent)
    , button_csv(makeButton("button_csv", qtTrId("existence_csv")))
    , button_save(makeFootButton("button_save", qtTrId("existence_save")))
    , button_ask2(makeFootButton("button_ask2", qtTrId("tool_from_mame")))
    , button_check2(makeFootButton("button_check2", qtTrId("existence_check")))
    , filterField(named("filterField", new QLineEdit(this), qtTrId("existence_filter")))
    , foundBar(new FoundBar(this))
    , rows(new RowsModel({qtTrId("existence_set"), qtTrId("existence_existence")}, this))
    , reportList(named("reportList", new RowsList(*rows, this), qtTrId("existence_page")))
{
    addHeading(qtTrId("existence_page"), qtTrId("existence_explanation"));
    listfullTextField2 = addPath(selectListfull2, defaults);
    rompathTextField2 = addPath(selectROMsfolder2, defaults);
    button_ask2->setToolTip(qtTrId("existence_ask_tip"));
    filterField->setPlaceholderText(qtTrId("existence_filter"));
    addWide(foundBar, 0);
    auto* line = new QWidget(this);
    auto* layout = edgeToEdge(line);
    layout->addWidget(filterField, 1);
    layout->addWidget(button_csv);
    addWide(line, 0);
    connect(filterField, &QLineEdit::textChanged, rows, &RowsModel::setFilter);
    reportList->setEmptyText(qtTrId("existence_empty"));
    addWide(reportList, 1);
}

} // namespace tessera
