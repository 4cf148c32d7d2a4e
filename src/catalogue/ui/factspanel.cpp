#include "catalogue/ui/factspanel.h"

#include "catalogue/gametypetransformer.h"
#include "catalogue/recorddictionary.h"
#include "core/message.h"
#include "widgets/theme.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QVBoxLayout>

namespace tessera {

namespace {

struct FactRow {
    Field field;
    const char* label;
};

constexpr std::array factRows{
    FactRow{Field::Name, textKey("fact_name")},     FactRow{Field::Cloneof, textKey("fact_cloneof")},
    FactRow{Field::Maker, textKey("fact_maker")},   FactRow{Field::Year, textKey("fact_year")},
    FactRow{Field::Device, textKey("fact_device")},
};

constexpr int markSize = 12;

QLabel* selectable(QLabel* label)
{
    label->setTextFormat(Qt::PlainText);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setWordWrap(true);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Minimum);
    return label;
}

} // namespace

FactsPanel::FactsPanel(QWidget* parent)
    : QWidget(parent)
    , m_title(selectable(new QLabel(this)))
    , m_titlejp(selectable(new QLabel(this)))
    , m_factsBox(new QWidget(this))
    , m_kind(new QLabel(this))
{
    m_title->setProperty("role", QStringLiteral("heading"));
    m_titlejp->setProperty("role", QStringLiteral("dim"));
    m_kind->setProperty("role", QStringLiteral("faint"));

    m_facts = new QGridLayout(m_factsBox);
    m_facts->setContentsMargins(0, 4, 0, 0);
    m_facts->setHorizontalSpacing(12);
    m_facts->setVerticalSpacing(6);
    m_facts->setColumnMinimumWidth(0, 72);
    m_facts->setColumnStretch(1, 1);
    for (const FactRow& row : factRows) {
        QLabel* value = selectable(new QLabel(this));
        m_rows.push_back({row.field, addFact(row.label, value), value});
    }

    // Beside the title, not among the facts: the mark is shown whatever is selected.
    auto* titleRow = new QHBoxLayout;
    titleRow->setSpacing(8);
    romMark = new QLabel(this);
    romMark->setObjectName(QStringLiteral("romMark"));
    romMark->setAlignment(Qt::AlignTop);
    romMark->setContentsMargins(0, 6, 0, 0);
    titleRow->addWidget(romMark);
    titleRow->addWidget(m_title, 1);
    m_status = selectable(new QLabel(this));
    m_rows.push_back({Field::Status, addFact(textKey("fact_status"), m_status), m_status});
    m_have = selectable(new QLabel(this));
    m_have->setObjectName(QStringLiteral("haveLabel"));
    m_haveName = addFact(textKey("fact_rom"), m_have);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(12, 8, 12, 12);
    layout->setSpacing(6);
    layout->addLayout(titleRow);
    layout->addWidget(m_titlejp);
    layout->addWidget(m_kind);
    layout->addWidget(m_factsBox);
    showRecord(nullptr, 0);
    showHave(std::nullopt, nullptr);
}

QLabel* FactsPanel::addFact(const char* textKey, QWidget* value)
{
    auto* name = new QLabel(qtTrId(textKey), this);
    name->setProperty("role", QStringLiteral("faint"));
    name->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    const int row = m_facts->rowCount();
    m_facts->addWidget(name, row, 0);
    m_facts->addWidget(value, row, 1);
    return name;
}

void FactsPanel::showRecord(const GameRecord* record, int count)
{
    const bool one = record != nullptr && count <= 1;
    m_factsBox->setVisible(one);
    m_titlejp->setVisible(one);
    m_kind->setVisible(one);
    if (!one) {
        m_title->setText(count > 1 ? qtTrId("facts_several").arg(QLocale().toString(count))
                                   : qtTrId("facts_none"));
        return;
    }
    const bool hasTitle = !(*record)[Field::Title].empty();
    m_title->setText(fieldText((*record)[hasTitle ? Field::Title : Field::Name]));
    m_titlejp->setText(fieldText((*record)[Field::Titlejp]));
    m_titlejp->setVisible(!m_titlejp->text().isEmpty() && m_titlejp->text() != m_title->text());
    m_kind->setText(GameTypeTransformer::transformedValue((*record)[Field::Type]));
    m_kind->setVisible(!m_kind->text().isEmpty());
    for (const Fact& fact : m_rows) {
        const bool known = !(*record)[fact.field].empty();
        fact.value->setText(fieldText((*record)[fact.field]));
        fact.name->setVisible(known);
        fact.value->setVisible(known);
    }
}

void FactsPanel::showHave(std::optional<Have> have, const GameRecord* record)
{
    m_have->setVisible(have && record != nullptr);
    m_haveName->setVisible(have && record != nullptr);
    if (!have || record == nullptr)
        return;
    switch (*have) {
    case Have::Here:
        return m_have->setText(qtTrId("have_here"));
    case Have::InParent:
        return m_have->setText(qtTrId("have_in_parent").arg(fieldText((*record)[Field::Cloneof])));
    case Have::Missing:
        return m_have->setText(qtTrId("have_missing"));
    }
}

void FactsPanel::showMark(const QString& imageName)
{
    romMark->setPixmap(theme::mark(imageName).pixmap(QSize(markSize, markSize), devicePixelRatioF()));
    romMark->setProperty("mark", imageName);
}

} // namespace tessera
