#include "catalogue/ui/filterpanel.h"

#include "widgets/closekeys.h"
#include "widgets/theme.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>

#include <algorithm>

namespace tessera {

namespace {

struct FieldRow {
    Field field;
    const char* label;
};

// clang-format off
constexpr std::array fields{
    FieldRow{Field::Title,   textKey("column_title")},
    FieldRow{Field::Titlejp, textKey("column_titlejp")},
    FieldRow{Field::Name,    textKey("column_name")},
    FieldRow{Field::Maker,   textKey("column_maker")},
    FieldRow{Field::Year,    textKey("column_year")},
    FieldRow{Field::Cloneof, textKey("column_cloneof")},
    FieldRow{Field::Status,  textKey("column_status")},
    FieldRow{Field::Type,    textKey("column_type")},
    FieldRow{Field::Device,  textKey("column_device")},
};
// clang-format on

QLabel* label(const char* role, const QString& text = QString())
{
    auto* made = new QLabel(text);
    made->setProperty("role", QLatin1String(role));
    made->setTextFormat(Qt::PlainText);
    made->setWordWrap(true);
    return made;
}

} // namespace

FilterPanel::FilterPanel(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , joinPopup(new QComboBox)
    , addButton(new QPushButton(qtTrId("filter_add")))
    , clearButton(new QPushButton(qtTrId("filter_clear")))
    , filterTextView(new QLineEdit)
    , makerButton(new QPushButton(qtTrId("filter_maker_apply")))
    , makerClearButton(new QPushButton(qtTrId("filter_maker_clear")))
    , m_rowsLayout(new QVBoxLayout)
    , m_hint(label("dim", qtTrId("filter_hint")))
    , m_makerState(label("dim"))
{
    setObjectName(QStringLiteral("filterPanel"));
    setWindowTitle(qtTrId("filter_window"));
    joinPopup->setObjectName(QStringLiteral("joinPopup"));
    joinPopup->setAccessibleName(qtTrId("filter_join"));
    joinPopup->addItems({qtTrId("filter_all"), qtTrId("filter_any")});
    addButton->setIcon(theme::icon(QStringLiteral("add")));
    m_rowsLayout->setSpacing(8);

    auto* head = new QHBoxLayout;
    head->setSpacing(8);
    head->addWidget(joinPopup);
    head->addStretch();
    head->addWidget(addButton);
    head->addWidget(clearButton);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 18, 20, 18);
    layout->setSpacing(12);
    layout->addWidget(label("heading", qtTrId("filter_heading")));
    layout->addLayout(head);
    layout->addWidget(m_hint);
    layout->addWidget(makeRowsBox(), 1);
    layout->addWidget(makeMakerBox());
    resize(560, 380);

    connect(addButton, &QPushButton::clicked, this, &FilterPanel::addRow);
    connect(clearButton, &QPushButton::clicked, this, &FilterPanel::clear);
    connect(joinPopup, &QComboBox::activated, this, &FilterPanel::tellRules);
    closeByKeyboard(*this);
}

QWidget* FilterPanel::makeRowsBox()
{
    auto* rows = new QWidget;
    auto* layout = new QVBoxLayout(rows);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(m_rowsLayout);
    layout->addStretch();
    auto* box = new QScrollArea;
    box->setFrameShape(QFrame::NoFrame);
    box->setWidgetResizable(true);
    box->setFocusPolicy(Qt::NoFocus);
    box->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    box->setWidget(rows);
    return box;
}

QWidget* FilterPanel::makeMakerBox()
{
    auto* box = new QWidget;
    filterTextView->setObjectName(QStringLiteral("filterTextView"));
    filterTextView->setAccessibleName(qtTrId("filter_maker"));
    filterTextView->setPlaceholderText(qtTrId("filter_maker_placeholder"));
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(filterTextView, 1);
    row->addWidget(makerButton);
    row->addWidget(makerClearButton);
    auto* layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(label("heading", qtTrId("filter_maker")));
    layout->addLayout(row);
    layout->addWidget(m_makerState);
    const auto want = [this] { Q_EMIT makerWanted(filterTextView->text()); };
    connect(makerButton, &QPushButton::clicked, this, want);
    connect(filterTextView, &QLineEdit::returnPressed, this, want);
    connect(makerClearButton, &QPushButton::clicked, this, &FilterPanel::makerCleared);
    showMaker(std::nullopt);
    return box;
}

void FilterPanel::addRow()
{
    Row row{new QWidget, new QComboBox, new QComboBox, new QLineEdit};
    for (const FieldRow& each : fields)
        row.field->addItem(qtTrId(each.label));
    for (const ComparisonRow& each : comparisons)
        row.comparison->addItem(qtTrId(each.label));
    row.comparison->setCurrentIndex(static_cast<int>(Comparison::Contains));
    row.field->setAccessibleName(qtTrId("filter_field"));
    row.comparison->setAccessibleName(qtTrId("filter_comparison"));
    row.value->setAccessibleName(qtTrId("filter_value"));
    auto* remove = new QToolButton;
    remove->setIcon(theme::icon(QStringLiteral("remove")));
    remove->setToolTip(qtTrId("filter_remove"));
    remove->setAccessibleName(qtTrId("filter_remove"));
    remove->setFocusPolicy(Qt::StrongFocus);

    auto* layout = new QHBoxLayout(row.box);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(row.field);
    layout->addWidget(row.comparison);
    layout->addWidget(row.value, 1);
    layout->addWidget(remove);
    m_rowsLayout->addWidget(row.box);
    m_rows.push_back(row);
    m_hint->hide();
    connect(row.field, &QComboBox::activated, this, &FilterPanel::tellRules);
    connect(row.comparison, &QComboBox::activated, this, &FilterPanel::tellRules);
    connect(row.value, &QLineEdit::textChanged, this, &FilterPanel::tellRules);
    connect(remove, &QToolButton::clicked, this, [this, box = row.box] { removeRow(box); });
    row.value->setFocus();
    tellRules();
}

void FilterPanel::removeRow(QWidget* box)
{
    std::erase_if(m_rows, [box](const Row& row) { return row.box == box; });
    box->hide();
    box->deleteLater();
    m_hint->setVisible(m_rows.empty());
    tellRules();
}

void FilterPanel::clear()
{
    while (!m_rows.empty())
        removeRow(m_rows.back().box);
    filterTextView->clear();
}

// A row that says nothing yet hides nothing.
FilterRules FilterPanel::rules() const
{
    FilterRules all{joinPopup->currentIndex() == 0, {}};
    for (const Row& row : m_rows) {
        if (!row.value->text().isEmpty())
            all.rules.push_back(
                {fields[static_cast<std::size_t>(row.field->currentIndex())].field,
                 comparisons[static_cast<std::size_t>(row.comparison->currentIndex())].comparison,
                 row.value->text()});
    }
    return all;
}

void FilterPanel::tellRules()
{
    Q_EMIT rulesChanged(rules());
}

void FilterPanel::showMaker(const std::optional<QString>& maker)
{
    makerClearButton->setEnabled(maker.has_value());
    m_makerState->setText(!maker                 ? qtTrId("filter_maker_none")
                              : maker->isEmpty() ? qtTrId("filter_maker_empty")
                                                 : qtTrId("hides_maker").arg(*maker));
}

} // namespace tessera
