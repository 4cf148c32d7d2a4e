#include "catalogue/ui/chipbar.h"

#include "catalogue/recorddictionary.h"
#include "catalogue/ui/chiplayout.h"
#include "widgets/plaintooltip.h"
#include "widgets/theme.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>

namespace tessera {

namespace {

constexpr int pillHeight = 26;
constexpr int margin = 12;
constexpr int gap = 8;
constexpr int keptGap = 8; // between the chips and the searches that were kept
constexpr int mostKeptLetters = 24;

} // namespace

ChipButton::ChipButton(const QString& label, QWidget* parent)
    : QAbstractButton(parent)
{
    setText(label);
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void ChipButton::setCount(std::size_t count)
{
    m_count = QLocale().toString(static_cast<qulonglong>(count));
    setAccessibleName(text() + u' ' + m_count);
    setToolTip(accessibleName());
    updateGeometry();
    update();
}

void ChipButton::elideBeyond(int letters)
{
    m_mostLetters = letters;
    updateGeometry();
}

QString ChipButton::shownLabel() const
{
    return m_mostLetters == 0
        ? text()
        : fontMetrics().elidedText(text(), Qt::ElideRight, m_mostLetters * fontMetrics().averageCharWidth());
}

QSize ChipButton::sizeHint() const
{
    const int count = m_count.isEmpty() ? 0 : gap + fontMetrics().horizontalAdvance(m_count);
    return minimumSizeHint() + QSize(count, 0);
}

QSize ChipButton::minimumSizeHint() const
{
    return {2 * margin + fontMetrics().horizontalAdvance(shownLabel()), pillHeight};
}

void ChipButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const char* border = hasFocus() ? "accent"
        : underMouse()              ? "faint"
        : isChecked()               ? "selection"
                                    : "border";
    painter.setPen(theme::color(border));
    painter.setBrush(isChecked() ? QBrush(theme::color("selection")) : QBrush(Qt::NoBrush));
    const QRectF pill = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    const QRect inner = rect().adjusted(margin, 0, -margin, 0);
    painter.setPen(theme::color(isChecked() ? "text" : "dim"));
    // Never shortened: it has the room that it asked for, but for a part of a pixel.
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, shownLabel());
    if (width() < sizeHint().width())
        return;
    painter.setPen(theme::color(isChecked() ? "dim" : "faint"));
    painter.drawText(inner, Qt::AlignRight | Qt::AlignVCenter, m_count);
}

// The toolkit asks for a menu by the menu key alone, which many keyboards lack.
void ChipButton::keyPressEvent(QKeyEvent* event)
{
    const bool wantsMenu = event->key() == Qt::Key_F10 && event->modifiers() == Qt::ShiftModifier;
    if (wantsMenu && contextMenuPolicy() == Qt::CustomContextMenu)
        Q_EMIT customContextMenuRequested(rect().bottomLeft());
    else
        QAbstractButton::keyPressEvent(event);
}

ChipBar::ChipBar(QWidget* parent)
    : QWidget(parent)
    , familiesBox(new QCheckBox(qtTrId("chips_families")))
    , m_group(new QButtonGroup(this))
    , m_row(new ChipLayout)
    , m_complaint(new QLabel)
{
    setProperty("role", QStringLiteral("chips"));
    setAttribute(Qt::WA_StyledBackground);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 7, 12, 7);
    layout->setSpacing(6);
    m_row->setSpacing(6);
    layout->addLayout(m_row);
    for (const ChipRow& chip : chips) {
        auto* button = new ChipButton(qtTrId(chip.label));
        button->setObjectName(QStringLiteral("chip_") + fieldText(chip.name));
        m_group->addButton(button, static_cast<int>(chip.chip));
        m_row->addWidget(button);
    }
    m_complaint->setObjectName(QStringLiteral("complaintLabel"));
    m_complaint->setProperty("role", QStringLiteral("notice"));
    m_complaint->setTextFormat(Qt::PlainText);
    m_complaint->setWordWrap(true);
    m_complaint->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    m_complaint->hide();
    layout->addWidget(m_complaint);
    familiesBox->setObjectName(QStringLiteral("familiesBox"));
    familiesBox->setToolTip(qtTrId("chips_families_help"));
    m_row->addWidget(familiesBox);
    connect(m_group, &QButtonGroup::idClicked, this,
            [this](int id) { Q_EMIT chosen(static_cast<Chip>(id)); });
    setChip(Chip::All);
}

void ChipBar::setChip(Chip chip)
{
    m_group->button(static_cast<int>(chip))->setChecked(true);
}

void ChipBar::setCounts(const ChipCounts& counts)
{
    for (std::size_t i = 0; i < chips.size(); ++i)
        static_cast<ChipButton*>(m_group->button(static_cast<int>(chips[i].chip)))->setCount(counts[i]);
}

void ChipBar::setKept(const std::vector<KeptSearch>& searches)
{
    // They are set anew, not made anew: the focus stays in its place.
    while (m_keptChips.size() > searches.size())
        removeKept();
    while (m_keptChips.size() < searches.size())
        addKept();
    m_kept = searches;
    for (std::size_t place = 0; place < m_kept.size(); ++place) {
        const KeptSearch& search = m_kept[place];
        ChipButton* button = m_keptChips[place];
        button->setText(search.name);
        button->setShortcut({}); // the name has no letter to be pressed: it is the user's own
        button->setAccessibleName(qtTrId("kept_chip").arg(search.name, search.query));
        button->setToolTip(plainToolTip(search.name + u'\n' + search.query));
        button->updateGeometry();
    }
}

void ChipBar::addKept()
{
    const std::size_t place = m_keptChips.size();
    auto* button = new ChipButton(QString(), this);
    button->setObjectName(QStringLiteral("keptChip_%1").arg(place));
    button->elideBeyond(mostKeptLetters);
    button->setContextMenuPolicy(Qt::CustomContextMenu);
    if (m_keptChips.empty())
        m_row->insertGap(m_row->count() - 1, keptGap);
    m_row->insert(m_row->count() - 1, button);
    setTabOrder(m_keptChips.empty() ? m_group->buttons().constLast() : m_keptChips.back(), button);
    m_keptChips.push_back(button);
    button->show();
    connect(button, &QAbstractButton::clicked, this,
            [this, place](bool on) { Q_EMIT keptClicked(place, on); });
    connect(button, &QWidget::customContextMenuRequested, this, [this, place, button](const QPoint& at) {
        Q_EMIT keptMenuWanted(place, button->mapToGlobal(at));
    });
}

void ChipBar::removeKept()
{
    delete m_keptChips.back();
    m_keptChips.pop_back();
    if (m_keptChips.empty())
        delete m_row->takeAt(m_row->count() - 2);
}

void ChipBar::showQuery(const QString& query)
{
    const QString asked = query.simplified();
    for (std::size_t place = 0; place < m_kept.size(); ++place)
        m_keptChips[place]->setChecked(m_kept[place].query == asked);
}

void ChipBar::focusKept(std::size_t place)
{
    if (m_keptChips.empty())
        m_group->checkedButton()->setFocus();
    else
        m_keptChips[std::min(place, m_keptChips.size() - 1)]->setFocus();
}

void ChipBar::complain(const QString& sentence)
{
    m_complaint->setText(sentence);
    m_complaint->setVisible(!sentence.isEmpty());
}

} // namespace tessera
