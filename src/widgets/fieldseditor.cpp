#include "widgets/fieldseditor.h"

#include "core/message.h"
#include "widgets/closekeys.h"
#include "widgets/named.h"

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace tessera {

FieldsEditor::FieldsEditor(const std::array<const char*, 4>& names, QWidget* parent)
    : QWidget(parent, Qt::Window)
    , removeButton(button(names[0], textKey("editor_remove")))
    , previousButton(button(names[1], textKey("editor_previous")))
    , nextButton(button(names[2], textKey("editor_next")))
    , closeButton(button(names[3], textKey("editor_close")))
    , m_heading(withRole("heading", new QLabel))
    , m_form(new QFormLayout)
{
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
    closeByKeyboard(*this);
}

// A field that goes away with its window loses the focus, and would be taken over by what is left of us.
FieldsEditor::~FieldsEditor()
{
    for (const Row& row : m_rows)
        row.edit->disconnect(this);
}

QPushButton* FieldsEditor::button(const char* name, const char* textKey)
{
    auto* made = named(name, new QPushButton(qtTrId(textKey)));
    made->setAutoDefault(false);
    return made;
}

QLineEdit* FieldsEditor::addField(const char* name, const char* labelKey, QLineEdit* edit)
{
    named(name, edit, qtTrId(labelKey));
    m_form->addRow(qtTrId(labelKey), edit);
    const auto field = static_cast<int>(m_rows.size());
    m_rows.push_back({edit, QString()});
    connect(edit, &QLineEdit::editingFinished, this, [this, field] { takeField(field); });
    return edit;
}

void FieldsEditor::addButtons(int width)
{
    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(removeButton);
    buttons->addStretch();
    for (QPushButton* each : {previousButton, nextButton, closeButton})
        buttons->addWidget(each);
    auto* all = static_cast<QVBoxLayout*>(layout());
    all->addStretch();
    all->addLayout(buttons);
    connect(closeButton, &QPushButton::clicked, this, &QWidget::close);
    resize(width, sizeHint().height());
}

void FieldsEditor::takeField(int field)
{
    Row& row = m_rows[static_cast<std::size_t>(field)];
    if (!m_item || !row.edit->isModified())
        return;
    row.edit->setModified(false);
    row.shown = row.edit->text();
    Q_EMIT fieldEdited(*m_item, field, row.shown);
}

void FieldsEditor::commit()
{
    for (int field = 0; field < static_cast<int>(m_rows.size()); ++field)
        takeField(field);
}

// False where the index stands for another item now: some were removed, or all replaced.
bool FieldsEditor::isStillShown(const Items& items) const
{
    if (!m_item || *m_item >= items.count)
        return false;
    for (int field = 0; const Row& row : m_rows) {
        if (items.value(*m_item, field++) != row.shown)
            return false;
    }
    return true;
}

void FieldsEditor::showItem(std::optional<std::uint32_t> item, const Items& items, const QString& heading,
                            bool editable)
{
    const bool isSame = item == m_item;
    if (!isSame && isStillShown(items))
        commit();
    m_item = item;
    for (int field = 0; Row & row : m_rows) {
        row.shown = item ? items.value(*item, field) : QString();
        if (!(isSame && row.edit->isModified()) && row.edit->text() != row.shown)
            row.edit->setText(row.shown);
        row.edit->setEnabled(item && editable);
        ++field;
    }
    m_heading->setText(heading);
    for (QPushButton* each : {removeButton, previousButton, nextButton})
        each->setEnabled(item && editable);
}

} // namespace tessera
