#include "info/ui/sitechoice.h"

#include "core/message.h"
#include "info/informationsites.h"
#include "platform/defaultscontroller.h"
#include "widgets/named.h"

#include <QComboBox>
#include <QLineEdit>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr int templates = 5; ///< items whose title is the template
constexpr int ownItem = 6;

// A site without a host has no address; its name stands there.
QString titleOf(int item, const DefaultsController& defaults)
{
    QString name = qtTrId("infosite_number").arg(informationSites[static_cast<std::size_t>(item)].number);
    if (item >= templates)
        return name;
    const QString text = templatesAt(informationSiteTable, item, defaults)->constFirst();
    return text.isEmpty() ? name : text;
}

} // namespace

SiteChoice::SiteChoice(DefaultsController& defaults, QWidget* parent)
    : QWidget(parent)
    , infositePop2(named("infositePop2", new QComboBox(this), qtTrId("infosite_choice")))
    , addressField2(named("addressField2", new QLineEdit(this), qtTrId("infosite_address")))
    , m_defaults(defaults)
{
    // An address may be longer than the window is wide.
    infositePop2->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    infositePop2->setMinimumContentsLength(8);
    for (int item = 0; item < ownItem; ++item)
        infositePop2->addItem(QString());
    infositePop2->addItem(ownSite);
    addressField2->setPlaceholderText(QStringLiteral("https://…/{$gamename}"));
    addressField2->setText(defaults.text(keys::VisitedRomPath));
    auto* layout = edgeToEdge<QVBoxLayout>(this, 8);
    layout->addWidget(infositePop2);
    layout->addWidget(addressField2);

    const int chosen = defaults.index(keys::Rominfosite);
    infositePop2->setCurrentIndex(chosen >= 0 && chosen < templates        ? chosen
                                      : chosen == informationSiteTable.own ? ownItem
                                                                           : 0);
    connect(infositePop2, &QComboBox::currentIndexChanged, this, &SiteChoice::showField);
    connect(&defaults, &DefaultsController::changed, this, &SiteChoice::showTitles);
    showTitles();
    showField();
}

// The titles depend on the hosts, which are settings.
void SiteChoice::showTitles()
{
    for (int item = 0; item < ownItem; ++item) {
        const QString title = titleOf(item, m_defaults);
        if (infositePop2->itemText(item) == title)
            continue;
        infositePop2->setItemText(item, title);
        infositePop2->setItemData(item, title, Qt::ToolTipRole);
    }
    infositePop2->setToolTip(infositePop2->currentText());
}

void SiteChoice::showField()
{
    addressField2->setVisible(infositePop2->currentIndex() == ownItem);
    infositePop2->setToolTip(infositePop2->currentText());
}

// Deliberate: the item between those with a template and the user's own has none.
QString SiteChoice::siteTemplate() const
{
    const int item = infositePop2->currentIndex();
    if (item == ownItem)
        return addressField2->text();
    return item >= 0 && item < templates ? infositePop2->currentText() : QString();
}

QString SiteChoice::hindrance() const
{
    const int item = infositePop2->currentIndex();
    if (item >= templates)
        return QString();
    const auto site = siteWithoutHost(informationSiteTable, item, m_defaults);
    return site ? qtTrId("infosite_no_host").arg(*site) : QString();
}

std::optional<QUrl> SiteChoice::page(const QString& name) const
{
    return gamePage(siteTemplate(), name);
}

} // namespace tessera
