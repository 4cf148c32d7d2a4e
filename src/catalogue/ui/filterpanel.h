#pragma once

#include "catalogue/filterrules.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QVBoxLayout;

namespace tessera {

/// The predicate panel: rows of field, comparison and value, joined by all or any; and the filter for one
/// maker.
class FilterPanel : public QWidget
{
    Q_OBJECT

public:
    explicit FilterPanel(QWidget* parent = nullptr);

    QComboBox* joinPopup;
    QPushButton* addButton;
    QPushButton* clearButton;
    QLineEdit* filterTextView;
    QPushButton* makerButton;
    QPushButton* makerClearButton;

    FilterRules rules() const;
    /// The rows are gone, and what was typed for the maker.
    void clear();
    void addRow();
    int rowCount() const { return static_cast<int>(m_rows.size()); }
    /// Which maker is filtered for now.
    void showMaker(const std::optional<QString>& maker);

Q_SIGNALS:
    void rulesChanged(const tessera::FilterRules& rules);
    void makerWanted(const QString& maker);
    void makerCleared();

private:
    struct Row {
        QWidget* box;
        QComboBox* field;
        QComboBox* comparison;
        QLineEdit* value;
    };

    void removeRow(QWidget* box);
    void tellRules();
    QWidget* makeRowsBox();
    QWidget* makeMakerBox();

    std::vector<Row> m_rows;
    QVBoxLayout* m_rowsLayout;
    QLabel* m_hint;
    QLabel* m_makerState;
};

} // namespace tessera
