#include "widgets/fontpanel.h"

#include "widgets/closekeys.h"
#include "widgets/named.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSpinBox>

#include <algorithm>

namespace tessera {

namespace {

constexpr QSize firstSize(520, 440);
constexpr int sampleHeight = 76;
constexpr int sampleSize = 22; // pixels
constexpr int smallestSize = 4;
constexpr int largestSize = 96;

QListView* makeList(const char* name, const QString& accessibleName, QWidget* parent)
{
    auto* list = named(name, withRole("choice", new QListView(parent)), accessibleName);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setUniformItemSizes(true);
    return list;
}

// Without the names that stand for whatever family the desktop likes: "Sans Serif".
QStringList familiesToShow()
{
    QStringList families = QFontDatabase::families();
    families.removeIf([](const QString& family) {
        return QFontDatabase::isPrivateFamily(family) || !QFontDatabase::hasFamily(family);
    });
    return families;
}

// From thin to black, each upright before slanted.
QStringList stylesToShow(const QString& family)
{
    QStringList styles = QFontDatabase::styles(family);
    std::ranges::sort(styles, {}, [&family](const QString& style) {
        return std::tuple(QFontDatabase::weight(family, style), QFontDatabase::italic(family, style), style);
    });
    return styles;
}

QString selectedText(const QListView& list)
{
    const QModelIndexList rows = list.selectionModel()->selectedIndexes();
    return rows.isEmpty() ? QString() : rows.constFirst().data().toString();
}

void showRow(QListView& list, const QStringListModel& texts, const QString& text)
{
    const auto row = texts.stringList().indexOf(text);
    list.setCurrentIndex(row < 0 ? QModelIndex() : texts.index(static_cast<int>(row)));
    if (row >= 0)
        list.scrollTo(list.currentIndex());
}

} // namespace

FontPanel::FontPanel(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , filterField(named("filterField", new QLineEdit(this), qtTrId("fontpanel_filter")))
    , familyList(makeList("familyList", qtTrId("fontpanel_families"), this))
    , styleList(makeList("styleList", qtTrId("fontpanel_styles"), this))
    , sizeField(named("sizeField", new QSpinBox(this), qtTrId("fontpanel_size")))
    , sampleLabel(new QLabel(qtTrId("fontpanel_sample"), this))
    , m_allFamilies(familiesToShow())
{
    setObjectName(QStringLiteral("fontPanel"));
    setWindowTitle(qtTrId("fontpanel_title"));
    filterField->setPlaceholderText(qtTrId("fontpanel_filter"));
    filterField->installEventFilter(this);
    sizeField->setRange(smallestSize, largestSize);
    familyList->setModel(&m_families);
    styleList->setModel(&m_styles);
    layOut();
    fillFamilies();

    connect(filterField, &QLineEdit::textChanged, this, &FontPanel::fillFamilies);
    connect(familyList->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { chooseFamily(selectedText(*familyList)); });
    connect(styleList->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { chooseStyle(selectedText(*styleList)); });
    connect(sizeField, &QSpinBox::valueChanged, this, &FontPanel::fontChosen);
    closeByKeyboard(*this);
    resize(firstSize);
}

void FontPanel::layOut()
{
    named("sampleLabel", withRole("picture", sampleLabel));
    sampleLabel->setAlignment(Qt::AlignCenter);
    sampleLabel->setFixedHeight(sampleHeight);
    sampleLabel->setMinimumWidth(1);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(8);
    layout->setColumnStretch(0, 3);
    layout->setColumnStretch(1, 2);
    layout->setRowStretch(1, 1);
    auto* top = new QHBoxLayout;
    top->setSpacing(8);
    top->addWidget(filterField, 1);
    top->addWidget(sizeField);
    layout->addLayout(top, 0, 0, 1, 2);
    layout->addWidget(familyList, 1, 0);
    layout->addWidget(styleList, 1, 1);
    layout->addWidget(sampleLabel, 2, 0, 1, 2);
}

void FontPanel::setModes(Modes modes)
{
    m_modes = modes;
    filterField->setVisible(modes.testFlag(FilterMode));
    styleList->setVisible(modes.testFlag(FaceMode));
    sizeField->setVisible(modes.testFlag(SizeMode));
}

void FontPanel::setPanelFont(const QFont& font)
{
    const QFontInfo shown(font);
    m_family = QFontDatabase::hasFamily(font.family()) ? font.family() : shown.family();
    m_style = font.styleName().isEmpty() ? shown.styleName() : font.styleName();
    const QSignalBlocker quiet(this);
    sizeField->setValue(shown.pixelSize());
    filterField->clear();
    fillFamilies();
    fillStyles();
    showSample();
}

QFont FontPanel::convertFont(const QFont& font) const
{
    if (m_family.isEmpty())
        return font;
    QFont converted = font;
    if (m_modes.testFlag(FaceMode))
        converted = QFontDatabase::font(m_family, m_style, font.pointSize());
    converted.setFamilies({m_family});
    if (m_modes.testFlag(SizeMode))
        converted.setPixelSize(sizeField->value());
    else if (font.pixelSize() > 0)
        converted.setPixelSize(font.pixelSize());
    return converted;
}

void FontPanel::fillFamilies()
{
    m_families.setStringList(m_allFamilies.filter(filterField->text(), Qt::CaseInsensitive));
    showRow(*familyList, m_families, m_family);
}

// The style that stands under the same name in the new family, or else the family's usual one.
void FontPanel::fillStyles()
{
    const QStringList styles = stylesToShow(m_family);
    m_styles.setStringList(styles);
    if (!styles.contains(m_style))
        m_style = QFontInfo(QFont(m_family)).styleName();
    if (!styles.contains(m_style))
        m_style = styles.value(0);
    showRow(*styleList, m_styles, m_style);
}

void FontPanel::showSample()
{
    QFont font = convertFont(this->font());
    font.setPixelSize(sampleSize);
    sampleLabel->setFont(font);
}

// A filter that hides the chosen family leaves it chosen.
void FontPanel::chooseFamily(const QString& family)
{
    if (family.isEmpty() || family == m_family)
        return;
    m_family = family;
    fillStyles();
    showSample();
    Q_EMIT fontChosen();
}

void FontPanel::chooseStyle(const QString& style)
{
    if (style.isEmpty() || style == m_style)
        return;
    m_style = style;
    showSample();
    Q_EMIT fontChosen();
}

// Rows have their height from the style sheet, which is not there before.
void FontPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    familyList->doItemsLayout();
    styleList->doItemsLayout();
    familyList->scrollTo(familyList->currentIndex(), QAbstractItemView::PositionAtCenter);
}

// Down goes on from the filter into the list, as it does in a search.
bool FontPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == filterField && event->type() == QEvent::KeyPress
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Down) {
        if (!familyList->currentIndex().isValid())
            familyList->setCurrentIndex(m_families.index(0));
        familyList->setFocus();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace tessera
