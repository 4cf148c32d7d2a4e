#include "app/windows/supportpage.h"

#include "widgets/toolbar.h"

#include <QHBoxLayout>
#include <QStackedWidget>
#include <QTabBar>

namespace tessera {

SupportPage::SupportPage(Toolbar& toolbar, QWidget* parent)
    : QWidget(parent)
    , strip(new QTabBar)
    , preferencesTab2(new QStackedWidget)
{
    strip->setObjectName(QStringLiteral("supportStrip"));
    strip->setAccessibleName(qtTrId("support"));
    strip->setProperty("role", QStringLiteral("strip"));
    strip->setDrawBase(false);
    strip->setExpanding(false);
    auto* row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(strip);
    row->addStretch();

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 12, 0, 0);
    layout->setSpacing(0);
    layout->addLayout(row);
    layout->addWidget(preferencesTab2, 1);
    toolbar.setPreferencesTab2(*preferencesTab2);
    connect(strip, &QTabBar::currentChanged, &toolbar, &Toolbar::pagestrip);
}

void SupportPage::addPage(const QString& title, QWidget* page)
{
    preferencesTab2->addWidget(page);
    strip->addTab(title);
}

} // namespace tessera
