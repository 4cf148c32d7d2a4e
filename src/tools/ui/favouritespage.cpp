#include "tools/ui/favouritespage.h"

#include "core/texts.h"
#include "widgets/boundcontrols.h"
#include "widgets/named.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace tessera {

FavouritesPage::FavouritesPage(DefaultsController& defaults, QWidget* parent)
    : ToolPage(parent)
    , hiddenText(named("hiddenText", new QLabel(this)))
    , button_showAll(makeButton("button_showAll", qtTrId("favourites_showall")))
    , button_convert3(makeFootButton("button_convert3", qtTrId("favourites_convert")))
    , m_hidden(new QWidget(this))
{
    addHeading(qtTrId("favourites_page"), qtTrId("favourites_explanation"));
    favoritesTextField = addPath(selectFavoritesxml);
    hiddenText->setWordWrap(true);
    auto* hidden = edgeToEdge(m_hidden);
    hidden->addWidget(hiddenText, 1);
    hidden->addWidget(button_showAll);
    addRow(QString(), m_hidden);
    resultText = named("resultText", addNote());
    resultText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    addStretch();
    showHidden(0);
    showResult({});

    bind(*favoritesTextField, defaults, keys::old_favoritesfile);
}

void FavouritesPage::showHidden(std::size_t records)
{
    hiddenText->setText(qtTrId("favourites_hidden").arg(numberText(records)));
    m_hidden->setVisible(records > 0);
}

void FavouritesPage::showResult(const QString& text)
{
    resultText->setText(text);
    resultText->setVisible(!text.isEmpty());
}

} // namespace tessera
