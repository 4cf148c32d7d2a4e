#include "info/ui/infopage.h"

#include "info/informationsites.h"
#include "widgets/boundcontrols.h"
#include "widgets/named.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

namespace tessera {

InfoPage::InfoPage(DefaultsController& defaults, QWidget* parent)
    : FormPage(parent)
    , infositePop(named("infositePop", new QComboBox))
    , hostField(makeField("hostField", qtTrId("infosite_host")))
    , rominfoTextField(makeField("rominfoTextField", qtTrId("infosite_template")))
    , urlTextField(makeField("urlTextField", qtTrId("infosite_url")))
    , openButton(named("openURLButton", new QPushButton(qtTrId("infosite_open"))))
{
    for (const WebSite& site : informationSites)
        infositePop->addItem(qtTrId("infosite_number").arg(site.number));
    // Its position is the one that keeps the template; nobody can choose it.
    infositePop->insertSeparator(infositePop->count());
    infositePop->addItem(ownSite);
    openButton->setAutoDefault(false);

    addHeading(qtTrId("infosite_heading"), qtTrId("infosite_explanation"));
    addRow(qtTrId("infosite_site"), infositePop);
    addRow(qtTrId("infosite_host"), hostField);
    addRow(qtTrId("infosite_template"), rominfoTextField);
    addNote(qtTrId("infosite_note"));
    addLine();
    auto* address = new QWidget;
    auto* row = edgeToEdge(address, 8);
    row->addWidget(urlTextField, 1);
    row->addWidget(openButton);
    address->setFocusProxy(urlTextField);
    addRow(qtTrId("infosite_url"), address);
    addStretch();

    bind(*infositePop, defaults, keys::Rominfosite);
    bind(*urlTextField, defaults, keys::VisitedURLPath);
}

} // namespace tessera
