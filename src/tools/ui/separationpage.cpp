#include "tools/ui/separationpage.h"

#include "core/texts.h"
#include "tools/separation.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "widgets/named.h"

#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>

namespace tessera {

namespace {
constexpr int failuresHeight = 96;
} // namespace

SeparationPage::SeparationPage(DefaultsController& defaults, QWidget* parent)
    : ToolPage(parent)
    , button_check1(makeFootButton("button_check1", qtTrId("separation_check")))
    , button_separete(makeFootButton("button_separete", qtTrId("separation_separate")))
    , rows(new RowsModel({qtTrId("separation_name"), qtTrId("separation_status")}, this))
    , separationList(named("separationList", new RowsList(*rows, this), qtTrId("separation_page")))
    , failedCopies(makeText("failedCopies", qtTrId("separation_failures")))
{
    addHeading(qtTrId("separation_page"), qtTrId("separation_explanation"));
    rompathTextField1 = addPath(selectROMsfolder1, defaults);
    listfullTextField1 = addPath(selectListfull1, defaults);
    movepathTextField = addPath(selectMovefolder, defaults);
    planText = named("planText", addNote());
    separationList->setEmptyText(qtTrId("separation_empty"));
    addWide(separationList, 1);
    failedCopies->setFixedHeight(failuresHeight);
    failedCopies->hide();
    addWide(failedCopies, 0);
    hidePlan();
}

void SeparationPage::showPlan(const SeparationPlan& plan)
{
    const QLocale locale;
    QString text
        = qtTrId("separation_plan")
              .arg(numberText(plan.supported), numberText(plan.toCopy), locale.formattedDataSize(plan.bytes));
    if (plan.alreadyThere > 0)
        text += qtTrId("separation_plan_there").arg(numberText(plan.alreadyThere));
    if (plan.free)
        text += qtTrId("separation_plan_free").arg(locale.formattedDataSize(*plan.free));
    const bool isTooMuch = plan.free && plan.bytes > *plan.free;
    if (isTooMuch)
        text += qtTrId("separation_plan_full");
    planText->setText(text);
    planText->setVisible(true);
}

void SeparationPage::hidePlan()
{
    planText->clear();
    planText->setVisible(false);
}

void SeparationPage::showFailures(const QStringList& failures)
{
    QStringList lines;
    if (!failures.isEmpty())
        lines << qtTrId("separation_not_copied").arg(numberText(failures.size()));
    for (const QString& failure : failures)
        lines << onOneLine(failure);
    failedCopies->setPlainText(lines.join(QLatin1Char('\n')));
    failedCopies->setVisible(!lines.isEmpty());
}

} // namespace tessera
