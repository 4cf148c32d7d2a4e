#include "catalogue/ui/chipbar.h"

#include "catalogue/recorddictionary.h"
#include "catalogue/ui/chiplayout.h"
#include "widgets/theme.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QVBoxLayout>

namespace tessera {

namespace {

constexpr int pillHeight = 26;
constexpr int margin = 12;
constexpr int gap = 8;

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

QSize ChipButton::sizeHint() const
{
    const int count = m_count.isEmpty() ? 0 : gap + fontMetrics().horizontalAdvance(m_count);
    return minimumSizeHint() + QSize(count, 0);
}

QSize ChipButton::minimumSizeHint() const
{
    return {2 * margin + fontMetrics().horizontalAdvance(text()), pillHeight};
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
    painter.drawText(inner, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextDontClip, text());
    if (width() < sizeHint().width())
        return;
    painter.setPen(theme::color(isChecked() ? "dim" : "faint"));
    painter.drawText(inner, Qt::AlignRight | Qt::AlignVCenter, m_count);
}

ChipBar::ChipBar(QWidget* parent)
    : QWidget(parent)
    , familiesBox(new QCheckBox(qtTrId("chips_families")))
    , m_group(new QButtonGroup(this))
    , m_complaint(new QLabel)
{
    setProperty("role", QStringLiteral("chips"));
    setAttribute(Qt::WA_StyledBackground);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 7, 12, 7);
    layout->setSpacing(6);
    auto* row = new ChipLayout;
    row->setSpacing(6);
    layout->addLayout(row);
    for (const ChipRow& chip : chips) {
        auto* button = new ChipButton(qtTrId(chip.label));
        button->setObjectName(QStringLiteral("chip_") + fieldText(chip.name));
        m_group->addButton(button, static_cast<int>(chip.chip));
        row->addWidget(button);
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
    row->addWidget(familiesBox);
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

void ChipBar::complain(const QString& sentence)
{
    m_complaint->setText(sentence);
    m_complaint->setVisible(!sentence.isEmpty());
}

} // namespace tessera
