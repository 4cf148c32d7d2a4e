#include "catalogue/ui/appearancepage.h"

#include "platform/defaultscontroller.h"
#include "widgets/boundcontrols.h"
#include "widgets/colorwell.h"
#include "widgets/fontname.h"
#include "widgets/theme.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

constexpr int sizeFieldWidth = 56;
constexpr QSize buttonSize(32, 30);

QWidget* beside(const QList<QWidget*>& controls, bool firstGrows, QWidget* parent)
{
    auto* row = new QWidget(parent);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    for (QWidget* control : controls)
        layout->addWidget(control);
    if (firstGrows)
        layout->setStretch(0, 1);
    else
        layout->addStretch();
    row->setFocusProxy(controls.constFirst());
    return row;
}

QLineEdit* makeShown(const char* objectName, const QString& name, QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setObjectName(QLatin1String(objectName));
    field->setAccessibleName(name);
    field->setReadOnly(true);
    return field;
}

// Its name says what is chosen, as there are two of them.
QPushButton* makeChooser(const char* objectName, const QString& chosen, QWidget* parent)
{
    auto* button = new QPushButton(qtTrId("appearance_choosefont"), parent);
    button->setObjectName(QLatin1String(objectName));
    button->setAccessibleName(chosen + QStringLiteral(" – ") + button->text());
    return button;
}

// A font's name in that font, in the size of the page.
void showFont(QLineEdit& field, const QString& name)
{
    if (field.text() == name)
        return;
    QFont font = namedFont(name);
    font.setPixelSize(field.parentWidget()->fontInfo().pixelSize());
    field.setText(name);
    field.setCursorPosition(0);
    field.setFont(font);
}

bool isInitial(const QColor& color, const Key<QLatin1StringView>& key)
{
    return color == QColor::fromString(key.initial);
}

} // namespace

AppearancePage::AppearancePage(DefaultsController& defaults, QWidget* parent)
    : FormPage(parent)
    , fontSampleField(makeShown("fontSampleField", qtTrId("appearance_font"), this))
    , fontButton(makeChooser("fontButton", qtTrId("appearance_font"), this))
    , favoriteFontField(makeShown("favoriteFontField", qtTrId("appearance_favoritefont"), this))
    , favoriteFontButton(makeChooser("favoriteFontButton", qtTrId("appearance_favoritefont"), this))
    , fontSizeField(makeShown("fontSizeField", qtTrId("appearance_size"), this))
    , smallerButton(makeButton("smaller", qtTrId("appearance_smaller"), "smallerButton"))
    , biggerButton(makeButton("bigger", qtTrId("appearance_bigger"), "biggerButton"))
    , coloringBox(new QCheckBox(qtTrId("appearance_coloring"), this))
    , textColorWell(makeWell(qtTrId("appearance_color"), "textColorWell"))
    , initialColorButton(makeButton("revert", qtTrId("appearance_initialcolor"), "initialColorButton"))
    , textColorWell2(makeWell(qtTrId("appearance_color2"), "textColorWell2"))
    , initialColorButton2(makeButton("revert", qtTrId("appearance_initialcolor2"), "initialColorButton2"))
    , m_defaults(defaults)
    , m_colors(defaults.stored())
{
    coloringBox->setObjectName(QStringLiteral("coloringBox"));
    layOut();
    bindControls(defaults);
}

QToolButton* AppearancePage::makeButton(const char* icon, const QString& name, const char* objectName)
{
    auto* button = new QToolButton(this);
    button->setObjectName(QLatin1String(objectName));
    button->setIcon(theme::icon(QLatin1String(icon)));
    button->setIconSize(QSize(16, 16));
    button->setFixedSize(buttonSize);
    button->setToolTip(name);
    button->setAccessibleName(name);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

ColorWell* AppearancePage::makeWell(const QString& name, const char* objectName)
{
    auto* well = new ColorWell(this);
    well->setObjectName(QLatin1String(objectName));
    well->setAccessibleName(name);
    return well;
}

void AppearancePage::layOut()
{
    fontSizeField->setFixedWidth(sizeFieldWidth);
    addRow(qtTrId("appearance_font"), beside({fontSampleField, fontButton}, true, this));
    addRow(qtTrId("appearance_favoritefont"), beside({favoriteFontField, favoriteFontButton}, true, this));
    addRow(qtTrId("appearance_size"), beside({fontSizeField, smallerButton, biggerButton}, false, this));
    addLine();
    addRow(qtTrId("appearance_rows"), coloringBox);
    addRow(qtTrId("appearance_color"), beside({textColorWell, initialColorButton}, false, this));
    addRow(qtTrId("appearance_color2"), beside({textColorWell2, initialColorButton2}, false, this));
    addNote(qtTrId("appearance_note"));
}

void AppearancePage::bindControls(DefaultsController& defaults)
{
    bind(*fontSizeField, defaults, keys::fontSize);
    // Not gamelist_coloring: the list reads this one.
    bind(*coloringBox, defaults, keys::GamelistColoring);
    connect(&defaults, &DefaultsController::changed, this, &AppearancePage::showFonts);
    connect(&defaults, &DefaultsController::changed, this, &AppearancePage::showColors);
    showFonts();
    showColors();
}

void AppearancePage::showFonts()
{
    showFont(*fontSampleField, m_defaults.text(keys::TablefontName));
    showFont(*favoriteFontField, m_defaults.text(keys::FavoritefontName));
}

void AppearancePage::showColors()
{
    textColorWell->setColor(m_colors.usualColor());
    textColorWell2->setColor(m_colors.colorWithoutArchive());
    initialColorButton->setEnabled(!isInitial(textColorWell->color(), keys::TableViewTextColor));
    initialColorButton2->setEnabled(!isInitial(textColorWell2->color(), keys::TableViewTextColor2));
}

} // namespace tessera
