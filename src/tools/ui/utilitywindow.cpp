#include "tools/ui/utilitywindow.h"

#include "tools/ui/conversionpage.h"
#include "widgets/closekeys.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr QSize usualSize(860, 540);
constexpr int listWidth = 196;
constexpr int indicatorWidth = 168;

} // namespace

UtilityWindow::UtilityWindow(DefaultsController& defaults, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , pageList(new QListWidget(this))
    , utilityTabView(new QStackedWidget(this))
    , conversionPage(new ConversionPage(defaults, this))
{
    setObjectName(QStringLiteral("utilityWindow"));
    setWindowTitle(qtTrId("tool_title"));
    pageList->setObjectName(QStringLiteral("pageList"));
    pageList->setAccessibleName(qtTrId("tool_pages"));
    pageList->setFixedWidth(listWidth);
    utilityTabView->setObjectName(QStringLiteral("utilityTabView"));
    addPage(conversionPage, qtTrId("convert_page"));

    auto* form = new QVBoxLayout;
    form->setSpacing(0);
    form->addWidget(utilityTabView, 1);
    form->addWidget(makeFoot());
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(pageList);
    layout->addLayout(form, 1);

    connect(pageList, &QListWidget::currentRowChanged, utilityTabView, &QStackedWidget::setCurrentIndex);
    pageList->setCurrentRow(0);
    closeByKeyboard(*this);
    resize(usualSize);
}

void UtilityWindow::addPage(QWidget* page, const QString& title)
{
    utilityTabView->addWidget(page);
    pageList->addItem(title);
}

QWidget* UtilityWindow::makeFoot()
{
    auto* foot = new QWidget(this);
    foot->setProperty("role", QStringLiteral("foot"));
    foot->setAttribute(Qt::WA_StyledBackground);
    infoTextField = new QLabel(foot);
    infoTextField->setObjectName(QStringLiteral("infoTextField"));
    infoTextField->setAccessibleName(qtTrId("tool_information"));
    infoTextField->setTextFormat(Qt::PlainText);
    infoTextField->setWordWrap(true);
    infoTextField->setTextInteractionFlags(Qt::TextSelectableByMouse);
    progressInd = new QProgressBar(foot);
    progressInd->setObjectName(QStringLiteral("progressInd"));
    progressInd->setAccessibleName(qtTrId("tool_progress"));
    progressInd->setTextVisible(false);
    progressInd->setFixedWidth(indicatorWidth);
    button_convert = new QPushButton(qtTrId("convert_button"), foot);
    button_convert->setObjectName(QStringLiteral("button_convert"));
    button_convert->setProperty("role", QStringLiteral("accent"));
    button_convert->setAutoDefault(true);

    auto* layout = new QHBoxLayout(foot);
    layout->setContentsMargins(18, 12, 18, 12);
    layout->setSpacing(14);
    layout->addWidget(infoTextField, 1);
    layout->addWidget(progressInd);
    layout->addWidget(button_convert);
    return foot;
}

void UtilityWindow::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    Q_EMIT closed();
}

} // namespace tessera
