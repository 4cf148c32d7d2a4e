#pragma once

#include "catalogue/gamerecord.h"
#include "widgets/fieldseditor.h"

#include <optional>
#include <span>

namespace tessera {

/// The fields of the selected record.
class RecordEditor : public FieldsEditor
{
    Q_OBJECT

public:
    explicit RecordEditor(QWidget* parent = nullptr);

    QLineEdit* editSetname;
    QLineEdit* editTitle;
    QLineEdit* editTitlejp;
    QLineEdit* editYear;
    QLineEdit* editManufacture;
    QLineEdit* editParent;
    QLineEdit* editStatus;
    QLineEdit* editType;
    QLineEdit* editDevice;
    QPushButton* editRemove; ///< the common one, by its own name
    QPushButton* editClose;

    /// Shows one of the records, or that none is selected.
    void show(std::optional<std::uint32_t> record, std::span<const GameRecord> records, bool editable);
    void bringForward();

Q_SIGNALS:
    void edited(std::uint32_t record, Field field, const QString& text);

private:
    QLineEdit* addField(const char* name, const char* labelKey, Field field,
                        const QStringList& proposals = {});

    std::vector<Field> m_fields; ///< in the order of the window
};

} // namespace tessera
