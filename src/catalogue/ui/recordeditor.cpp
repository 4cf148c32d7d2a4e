#include "catalogue/ui/recordeditor.h"

#include "catalogue/recorddictionary.h"
#include "core/failure.h"
#include "widgets/bringforward.h"
#include "widgets/closekeys.h"

#include <QCompleter>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <algorithm>

namespace tessera {

namespace {

const QStringList statuses{QStringLiteral("good"), QStringLiteral("imperfect"),
                           QStringLiteral("preliminary")};
const QStringList types{QStringLiteral("game"), QStringLiteral("bios"), QStringLiteral("mechanical"),
                        QStringLiteral("device")};

QPushButton* button(const char* name, const char* textKey)
{
    auto* made = new QPushButton(qtTrId(textKey));
    made->setObjectName(QLatin1String(name));
    made->setAutoDefault(false);
    return made;
}

} // namespace

RecordEditor::RecordEditor(QWidget* parent)
    : QWidget(parent, Qt::Window)
    , editRemove(button("editRemove", textKey("editor_remove")))
    , editClose(button("editClose", textKey("editor_close")))
    , previousButton(button("previousButton", textKey("editor_previous")))
    , nextButton(button("nextButton", textKey("editor_next")))
    , m_heading(new QLabel)
    , m_form(new QFormLayout)
{
    setObjectName(QStringLiteral("recordEditor"));
    setWindowTitle(qtTrId("editor_window"));
    m_heading->setProperty("role", QStringLiteral("heading"));
    m_heading->setTextFormat(Qt::PlainText);
    m_heading->setWordWrap(true);
    m_form->setLabelAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_form->setHorizontalSpacing(12);
    m_form->setVerticalSpacing(8);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 18, 20, 18);
    layout->setSpacing(14);
    layout->addWidget(m_heading);
    layout->addLayout(m_form);
    editSetname = addField("editSetname", textKey("column_name"), Field::Name);
    editTitle = addField("editTitle", textKey("column_title"), Field::Title);
    editTitlejp = addField("editTitlejp", textKey("column_titlejp"), Field::Titlejp);
    editYear = addField("editYear", textKey("column_year"), Field::Year);
    editManufacture = addField("editManufacture", textKey("column_maker"), Field::Maker);
    editParent = addField("editParent", textKey("column_cloneof"), Field::Cloneof);
    editStatus = addField("editStatus", textKey("column_status"), Field::Status, statuses);
    editType = addField("editType", textKey("column_type"), Field::Type, types);
    editDevice = addField("editDevice", textKey("column_device"), Field::Device);

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(editRemove);
    buttons->addStretch();
    for (QPushButton* each : {previousButton, nextButton, editClose})
        buttons->addWidget(each);
    layout->addStretch();
    layout->addLayout(buttons);
    resize(520, sizeHint().height());

    connect(editClose, &QPushButton::clicked, this, &QWidget::close);
    closeByKeyboard(*this);
}

QLineEdit* RecordEditor::addField(const char* name, const char* labelKey, Field field,
                                  const QStringList& proposals)
{
    auto* edit = new QLineEdit;
    edit->setObjectName(QLatin1String(name));
    edit->setAccessibleName(qtTrId(labelKey));
    if (!proposals.isEmpty())
        edit->setCompleter(new QCompleter(proposals, edit));
    m_form->addRow(qtTrId(labelKey), edit);
    const std::size_t row = m_rows.size();
    m_rows.push_back({field, edit, QString()});
    connect(edit, &QLineEdit::editingFinished, this, [this, row] { take(m_rows[row]); });
    return edit;
}

void RecordEditor::take(Row& row)
{
    if (!m_record || !row.edit->isModified())
        return;
    row.edit->setModified(false);
    row.shown = row.edit->text();
    Q_EMIT edited(*m_record, row.field, row.shown);
}

void RecordEditor::commit()
{
    for (Row& row : m_rows)
        take(row);
}

// False where the index stands for another record now: some were removed, or all replaced.
bool RecordEditor::isStillShown(std::span<const GameRecord> records) const
{
    return m_record && *m_record < records.size()
        && std::ranges::all_of(
               m_rows, [&](const Row& row) { return fieldText(records[*m_record][row.field]) == row.shown; });
}

void RecordEditor::show(std::optional<std::uint32_t> record, std::span<const GameRecord> records,
                        bool editable)
{
    const bool isSame = record == m_record;
    if (!isSame && isStillShown(records))
        commit();
    m_record = record;
    for (Row& row : m_rows) {
        row.shown = record ? fieldText(records[*record][row.field]) : QString();
        if (!(isSame && row.edit->isModified()) && row.edit->text() != row.shown)
            row.edit->setText(row.shown);
        row.edit->setEnabled(record && editable);
    }
    m_heading->setText(record ? fieldText(records[*record][Field::Title]) : qtTrId("facts_none"));
    for (QPushButton* each : {editRemove, previousButton, nextButton})
        each->setEnabled(record && editable);
}

// A field that goes away with its window loses the focus, and would be taken over by what is left of us.
RecordEditor::~RecordEditor()
{
    for (const Row& row : m_rows)
        row.edit->disconnect(this);
}

void RecordEditor::bringForward()
{
    tessera::bringForward(*this);
    editSetname->setFocus();
}

} // namespace tessera
