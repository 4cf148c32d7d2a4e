#include "tools/ui/utilitywindow.h"

#include "tools/ui/conversionpage.h"
#include "tools/ui/existencepage.h"
#include "tools/ui/favouritespage.h"
#include "tools/ui/scriptpage.h"
#include "tools/ui/separationpage.h"
#include "tools/ui/utilityfoot.h"
#include "tools/ui/verificationpage.h"
#include "widgets/closekeys.h"
#include "widgets/named.h"

#include <QListWidget>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr QSize usualSize(940, 640);
constexpr int listWidth = 196;

} // namespace

UtilityWindow::UtilityWindow(DefaultsController& defaults, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , pageList(named("pageList", new QListWidget(this), qtTrId("tool_pages")))
    , utilityTabView(named("utilityTabView", new QStackedWidget(this)))
    , conversionPage(new ConversionPage(defaults, this))
    , existencePage(new ExistencePage(defaults, this))
    , separationPage(new SeparationPage(defaults, this))
    , verificationPage(new VerificationPage(defaults, this))
    , favouritesPage(new FavouritesPage(defaults, this))
    , scriptPage(new ScriptPage(defaults, this))
    , foot(new UtilityFoot(this))
{
    setObjectName(QStringLiteral("utilityWindow"));
    setWindowTitle(qtTrId("tool_title"));
    pageList->setFixedWidth(listWidth);
    addPage(conversionPage, qtTrId("convert_page"));
    addPage(existencePage, qtTrId("existence_page"));
    addPage(separationPage, qtTrId("separation_page"));
    addPage(verificationPage, qtTrId("verification_page"));
    addPage(favouritesPage, qtTrId("favourites_page"));
    addPage(scriptPage, qtTrId("script_page"));

    auto* form = new QVBoxLayout;
    form->setSpacing(0);
    form->addWidget(utilityTabView, 1);
    form->addWidget(foot);
    auto* layout = edgeToEdge(this, 0);
    layout->addWidget(pageList);
    layout->addLayout(form, 1);

    connect(pageList, &QListWidget::currentRowChanged, utilityTabView, &QStackedWidget::setCurrentIndex);
    connect(pageList, &QListWidget::currentRowChanged, foot, &UtilityFoot::showButtonsOf);
    pageList->setCurrentRow(0);
    closeByKeyboard(*this);
    resize(usualSize);
}

void UtilityWindow::addPage(ToolPage* page, const QString& title)
{
    utilityTabView->addWidget(page);
    pageList->addItem(title);
    foot->addButtons(page->footButtons());
}

} // namespace tessera
