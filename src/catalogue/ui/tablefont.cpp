#include "catalogue/ui/tablefont.h"

#include "catalogue/ui/appearancepage.h"
#include "core/message.h"
#include "platform/defaultscontroller.h"
#include "platform/desktop.h"
#include "widgets/bringforward.h"
#include "widgets/fontname.h"

#include <QFontDatabase>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include <cmath>
#include <utility>

namespace tessera {

namespace {
constexpr double rowHeightOfSize = 1.5;
}

TableFont::TableFont(Desktop& desktop, DefaultsController& defaults, QObject* parent)
    : QObject(parent)
    , m_desktop(desktop)
    , m_defaults(defaults)
{
    connect(&defaults, &DefaultsController::changed, this, &TableFont::settingChanged);
}

TableFont::~TableFont() = default;

void TableFont::setPage(const AppearancePage& page)
{
    connect(page.biggerButton, &QToolButton::clicked, this, &TableFont::makeTextBigger);
    connect(page.smallerButton, &QToolButton::clicked, this, &TableFont::makeTextSmaller);
    connect(page.fontButton, &QPushButton::clicked, this, &TableFont::showFontPanel1);
    connect(page.favoriteFontButton, &QPushButton::clicked, this, &TableFont::showFontPanel2);
}

// The limits differ: each way is open from where the other one can lead.
void TableFont::makeTextBigger()
{
    step(1, 9, 27);
}

void TableFont::makeTextSmaller()
{
    step(-1, 10, 28);
}

void TableFont::step(int by, int smallest, int largest)
{
    const double shown = std::trunc(m_defaults.text(keys::fontSize).toDouble());
    if (!(shown >= smallest && shown <= largest)) {
        m_desktop.beep();
        return;
    }
    m_defaults.setIndex(keys::rowHeight, (shown + by) * rowHeightOfSize);
    m_defaults.setIndex(keys::fontSize, shown + by);
}

FontPanel::Modes TableFont::validModesForFontPanel() const
{
    return FontPanel::AllModes & ~FontPanel::Modes(FontPanel::SizeMode);
}

FontPanel& TableFont::fontPanel()
{
    if (!m_panel) {
        m_panel = std::make_unique<FontPanel>();
        m_panel->setModes(validModesForFontPanel());
        m_panel->setPanelFont(namedFont(m_defaults.text(*m_chosen)));
        connect(m_panel.get(), &FontPanel::fontChosen, this, [this] { changeFont(*m_panel); });
    }
    return *m_panel;
}

void TableFont::changeFont(const FontPanel& panel)
{
    const QFont font = panel.convertFont(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
    m_defaults.setText(*m_chosen, fontName(font));
    if (const QString failure = m_defaults.flush(); !failure.isEmpty())
        Q_EMIT statusMessage(failure);
}

void TableFont::showFontPanel1()
{
    showPanelFor(keys::TablefontName);
}

void TableFont::showFontPanel2()
{
    showPanelFor(keys::FavoritefontName);
}

void TableFont::showPanelFor(const keys::Text& font)
{
    FontPanel& panel = fontPanel();
    const bool isOther = std::exchange(m_chosen, &font) != &font;
    if (isOther)
        panel.setPanelFont(namedFont(m_defaults.text(font)));
    panel.setWindowTitle(qtTrId(m_chosen == &keys::TablefontName ? textKey("appearance_font")
                                                                 : textKey("appearance_favoritefont")));
    if (isOther || !isShown(panel))
        bringForward(panel);
}

// A reset, say, while the panel is open.
void TableFont::settingChanged(const QString& setting)
{
    if (!m_panel || (!setting.isEmpty() && setting != m_chosen->name))
        return;
    const QString name = m_defaults.text(*m_chosen);
    if (fontName(m_panel->convertFont(QFont())) != name)
        m_panel->setPanelFont(namedFont(name));
}

} // namespace tessera
