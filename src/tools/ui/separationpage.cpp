#include "tools/ui/separationpage.h"

#include "tools/separation.h"
#include "tools/ui/oneline.h"
#include "tools/ui/rowslist.h"
#include "tools/ui/rowsmodel.h"
#include "widgets/boundcontrols.h"
#include "widgets/pathfield.h"

#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

namespace {
constexpr int failuresHeight = 96;
constexpr int textMargin = 8;
} // namespace

SeparationPage::SeparationPage(DefaultsController& defaults, QWidget* parent)
    : ToolPage(parent)
    , button_check1(new QPushButton(qtTrId("separation_check"), this))
    , button_separete(new QPushButton(qtTrId("separation_separate"), this))
    , rows(new RowsModel({qtTrId("separation_name"), qtTrId("separation_status")}, this))
    , separationList(new RowsList(*rows, QStringLiteral("separationList"), this))
    , failedCopies(new QPlainTextEdit(this))
{
    addHeading(qtTrId("separation_page"), qtTrId("separation_explanation"));
    const PathField* roms
        = addPath(qtTrId("tool_roms"), QStringLiteral("rompathTextField1"), QStringLiteral("rompath1"));
    const PathField* listfull
        = addPath(qtTrId("tool_listfull"), QStringLiteral("listfullTextField1"), QStringLiteral("listfull1"));
    const PathField* destination = addPath(qtTrId("separation_destination"),
                                           QStringLiteral("movepathTextField"), QStringLiteral("movepath"));
    rompathTextField1 = roms->field();
    button_rompath1 = roms->chooseButton();
    reveal_rompath1 = roms->revealButton();
    listfullTextField1 = listfull->field();
    button_listfull1 = listfull->chooseButton();
    reveal_listfull1 = listfull->revealButton();
    movepathTextField = destination->field();
    button_movepath = destination->chooseButton();
    reveal_movepath = destination->revealButton();
    button_check1->setObjectName(QStringLiteral("button_check1"));
    button_separete->setObjectName(QStringLiteral("button_separete"));
    planText = addNote();
    planText->setObjectName(QStringLiteral("planText"));
    separationList->setAccessibleName(qtTrId("separation_page"));
    separationList->setEmptyText(qtTrId("separation_empty"));
    addWide(separationList, 1);
    failedCopies->setObjectName(QStringLiteral("failedCopies"));
    failedCopies->setAccessibleName(qtTrId("separation_failures"));
    failedCopies->setReadOnly(true);
    failedCopies->document()->setDocumentMargin(textMargin);
    failedCopies->setTabChangesFocus(true);
    failedCopies->setFixedHeight(failuresHeight);
    failedCopies->hide();
    addWide(failedCopies, 0);
    hidePlan();

    bind(*rompathTextField1, defaults, keys::romsfolderPath);
    bind(*listfullTextField1, defaults, keys::listfullPath);
    bind(*movepathTextField, defaults, keys::movefolderPath);
}

void SeparationPage::showPlan(const SeparationPlan& plan)
{
    const QLocale locale;
    const auto number = [&](std::size_t count) { return locale.toString(static_cast<qulonglong>(count)); };
    QString text
        = qtTrId("separation_plan")
              .arg(number(plan.supported), number(plan.toCopy), locale.formattedDataSize(plan.bytes));
    if (plan.alreadyThere > 0)
        text += qtTrId("separation_plan_there").arg(number(plan.alreadyThere));
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
        lines << qtTrId("separation_not_copied").arg(QLocale().toString(failures.size()));
    for (const QString& failure : failures)
        lines << onOneLine(failure);
    failedCopies->setPlainText(lines.join(QLatin1Char('\n')));
    failedCopies->setVisible(!lines.isEmpty());
}

} // namespace tessera
