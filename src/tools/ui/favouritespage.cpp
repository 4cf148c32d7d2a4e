#include "tools/ui/favouritespage.h"

#include "widgets/boundcontrols.h"
#include "widgets/pathfield.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QToolButton>

namespace tessera {

FavouritesPage::FavouritesPage(DefaultsController& defaults, QWidget* parent)
    : ToolPage(parent)
    , hiddenText(new QLabel(this))
    , button_showAll(new QPushButton(qtTrId("favourites_showall"), this))
    , button_convert3(new QPushButton(qtTrId("favourites_convert"), this))
    , m_hidden(new QWidget(this))
{
    addHeading(qtTrId("favourites_page"), qtTrId("favourites_explanation"));
    const PathField* old = addPath(qtTrId("favourites_file"), QStringLiteral("favoritesTextField"),
                                   QStringLiteral("favorites"));
    favoritesTextField = old->field();
    button_favorites = old->chooseButton();
    reveal_favorites = old->revealButton();
    button_convert3->setObjectName(QStringLiteral("button_convert3"));
    button_showAll->setObjectName(QStringLiteral("button_showAll"));
    hiddenText->setObjectName(QStringLiteral("hiddenText"));
    hiddenText->setWordWrap(true);
    auto* hidden = new QHBoxLayout(m_hidden);
    hidden->setContentsMargins(0, 0, 0, 0);
    hidden->addWidget(hiddenText, 1);
    hidden->addWidget(button_showAll);
    addRow(QString(), m_hidden);
    resultText = addNote();
    resultText->setObjectName(QStringLiteral("resultText"));
    resultText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    addStretch();
    showHidden(0);
    showResult({});

    bind(*favoritesTextField, defaults, keys::old_favoritesfile);
}

void FavouritesPage::showHidden(std::size_t records)
{
    hiddenText->setText(
        qtTrId("favourites_hidden").arg(QLocale().toString(static_cast<qulonglong>(records))));
    m_hidden->setVisible(records > 0);
}

void FavouritesPage::showResult(const QString& text)
{
    resultText->setText(text);
    resultText->setVisible(!text.isEmpty());
}

} // namespace tessera
