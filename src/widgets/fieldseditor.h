#pragma once

#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tessera {

/// A window with the values of one item of a list, edited in place: a field is taken over when it is left or
/// with Return. Fields are counted in the order in which they were added.
class FieldsEditor : public QWidget
{
    Q_OBJECT

public:
    ~FieldsEditor() override;

    QPushButton* removeButton;
    QPushButton* previousButton;
    QPushButton* nextButton;
    QPushButton* closeButton;

    /// Takes over what stands in a field that was not left yet.
    void commit();

Q_SIGNALS:
    void fieldEdited(std::uint32_t item, int field, const QString& text);

protected:
    /// `names` are the object names of the four buttons, in the order above.
    FieldsEditor(const std::array<const char*, 4>& names, QWidget* parent);

    /// The list that an item is one of.
    struct Items {
        std::size_t count;
        std::function<QString(std::uint32_t item, int field)> value;
    };

    /// A button of the editor's own.
    static QPushButton* button(const char* name, const char* textKey);
    QLineEdit* addField(const char* name, const char* labelKey, QLineEdit* edit);
    QLineEdit* field(int number) const { return m_rows[static_cast<std::size_t>(number)].edit; }
    QFormLayout& form() { return *m_form; }
    /// After the last field.
    void addButtons(int width);
    /// Shows an item, or that none is selected. A field that is being edited keeps its text while the item is
    /// the same.
    void showItem(std::optional<std::uint32_t> item, const Items& items, const QString& heading,
                  bool editable);

private:
    struct Row {
        QLineEdit* edit;
        QString shown; ///< the item's own value
    };

    void takeField(int field);
    bool isStillShown(const Items& items) const;

    std::vector<Row> m_rows;
    std::optional<std::uint32_t> m_item;
    QLabel* m_heading;
    QFormLayout* m_form;
};

} // namespace tessera
