#include "catalogue/ui/recordeditor.h"

#include "catalogue/recorddictionary.h"
#include "core/message.h"
#include "widgets/bringforward.h"

#include <QCompleter>
#include <QLineEdit>

namespace tessera {

namespace {

constexpr int firstWidth = 520;
const QStringList statuses{QStringLiteral("good"), QStringLiteral("imperfect"),
                           QStringLiteral("preliminary")};
const QStringList types{QStringLiteral("game"), QStringLiteral("bios"), QStringLiteral("mechanical"),
                        QStringLiteral("device")};

} // namespace

RecordEditor::RecordEditor(QWidget* parent)
    : FieldsEditor({"editRemove", "previousButton", "nextButton", "editClose"}, parent)
    , editRemove(removeButton)
    , editClose(closeButton)
{
    setObjectName(QStringLiteral("recordEditor"));
    setWindowTitle(qtTrId("editor_window"));
    editSetname = addField("editSetname", textKey("column_name"), Field::Name);
    editTitle = addField("editTitle", textKey("column_title"), Field::Title);
    editTitlejp = addField("editTitlejp", textKey("column_titlejp"), Field::Titlejp);
    editYear = addField("editYear", textKey("column_year"), Field::Year);
    editManufacture = addField("editManufacture", textKey("column_maker"), Field::Maker);
    editParent = addField("editParent", textKey("column_cloneof"), Field::Cloneof);
    editStatus = addField("editStatus", textKey("column_status"), Field::Status, statuses);
    editType = addField("editType", textKey("column_type"), Field::Type, types);
    editDevice = addField("editDevice", textKey("column_device"), Field::Device);
    addButtons(firstWidth);
    connect(this, &FieldsEditor::fieldEdited, this,
            [this](std::uint32_t record, int field, const QString& text) {
                Q_EMIT edited(record, m_fields[static_cast<std::size_t>(field)], text);
            });
}

QLineEdit* RecordEditor::addField(const char* name, const char* labelKey, Field field,
                                  const QStringList& proposals)
{
    QLineEdit* edit = FieldsEditor::addField(name, labelKey, new QLineEdit);
    if (!proposals.isEmpty())
        edit->setCompleter(new QCompleter(proposals, edit));
    m_fields.push_back(field);
    return edit;
}

void RecordEditor::show(std::optional<std::uint32_t> record, std::span<const GameRecord> records,
                        bool editable)
{
    const auto value = [this, records](std::uint32_t item, int field) {
        return fieldText(records[item][m_fields[static_cast<std::size_t>(field)]]);
    };
    showItem(record, {records.size(), value},
             record ? fieldText(records[*record][Field::Title]) : qtTrId("facts_none"), editable);
}

void RecordEditor::bringForward()
{
    tessera::bringForward(*this);
    editSetname->setFocus();
}

} // namespace tessera
