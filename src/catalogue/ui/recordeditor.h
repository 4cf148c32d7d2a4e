#pragma once

#include "catalogue/gamerecord.h"

#include <QWidget>

#include <optional>
#include <span>

class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tessera {

/// The fields of the selected record, edited in place: a field is taken over when it is left or with Return.
class RecordEditor : public QWidget
{
    Q_OBJECT

public:
    explicit RecordEditor(QWidget* parent = nullptr);
    ~RecordEditor() override;

    QLineEdit* editSetname;
    QLineEdit* editTitle;
    QLineEdit* editTitlejp;
    QLineEdit* editYear;
    QLineEdit* editManufacture;
    QLineEdit* editParent;
    QLineEdit* editStatus;
    QLineEdit* editType;
    QLineEdit* editDevice;
    QPushButton* editRemove;
    QPushButton* editClose;
    QPushButton* previousButton;
    QPushButton* nextButton;

    /// Shows one of the records, or that none is selected. A field that is being edited keeps its text while
    /// the record is the same.
    void show(std::optional<std::uint32_t> record, std::span<const GameRecord> records, bool editable);
    void bringForward();
    /// Takes over what stands in a field that was not left yet.
    void commit();

Q_SIGNALS:
    void edited(std::uint32_t record, Field field, const QString& text);

private:
    struct Row {
        Field field;
        QLineEdit* edit;
        QString shown; ///< the record's own value
    };

    QLineEdit* addField(const char* name, const char* labelKey, Field field,
                        const QStringList& proposals = {});
    void take(Row& row);
    bool isStillShown(std::span<const GameRecord> records) const;

    std::vector<Row> m_rows;
    std::optional<std::uint32_t> m_record;
    QLabel* m_heading;
    QFormLayout* m_form;
};

} // namespace tessera
