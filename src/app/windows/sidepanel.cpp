#include "app/windows/sidepanel.h"

#include "artwork/ui/picturepane.h"
#include "catalogue/ui/factspanel.h"
#include "core/message.h"

#include <QGridLayout>
#include <QPushButton>
#include <QScrollArea>
#include <QSplitter>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr int pictureHeight = 256;
constexpr int factsHeight = 480;

// The list keeps the focus when one of them is clicked.
QPushButton* makeButton(const char* objectName, const char* text)
{
    auto* button = new QPushButton(qtTrId(text));
    button->setObjectName(QLatin1String(objectName));
    button->setFocusPolicy(Qt::TabFocus);
    button->setProperty("role", QStringLiteral("small"));
    return button;
}

} // namespace

SidePanel::SidePanel(DefaultsController& defaults, const QString& identifier, QWidget* parent)
    : QWidget(parent)
    , picturePane(new PicturePane(defaults))
    , factsPanel(new FactsPanel)
    , splitView(new QSplitter(Qt::Vertical))
    , historyButton(makeButton("sideHistoryButton", textKey("side_history")))
    , pageButton(makeButton("sidePageButton", textKey("side_page")))
    , verifyButton(makeButton("sideVerifyButton", textKey("side_verify")))
    , revealButton(makeButton("sideRevealButton", textKey("side_reveal")))
{
    setProperty("role", QStringLiteral("panel"));
    setAttribute(Qt::WA_StyledBackground);
    splitView->setObjectName(identifier);
    splitView->setHandleWidth(1);
    splitView->addWidget(picturePane);
    splitView->addWidget(makeLower());
    splitView->setSizes({pictureHeight, factsHeight});
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(splitView);
}

void SidePanel::addSites(QWidget* sites)
{
    m_actions->addWidget(sites, m_actions->rowCount(), 0, 1, m_actions->columnCount());
}

QWidget* SidePanel::makeLower()
{
    m_actions = new QGridLayout;
    m_actions->setContentsMargins(12, 4, 12, 12);
    m_actions->setSpacing(8);
    m_actions->addWidget(historyButton, 0, 0);
    m_actions->addWidget(pageButton, 0, 1);
    m_actions->addWidget(revealButton, 1, 0);
    m_actions->addWidget(verifyButton, 1, 1);
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(factsPanel);
    layout->addLayout(m_actions);
    layout->addStretch(1);
    auto* area = new QScrollArea;
    area->setObjectName(QStringLiteral("factsArea"));
    area->setFocusPolicy(Qt::NoFocus);
    area->setFrameShape(QFrame::NoFrame);
    area->setWidgetResizable(true);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setWidget(content);
    return area;
}

} // namespace tessera
