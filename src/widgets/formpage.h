#pragma once

#include <QWidget>

class QGridLayout;
class QLabel;
class QLineEdit;

namespace tessera {

/// A page of settings: one column of right-aligned labels beside their controls, groups parted by a thin
/// line.
class FormPage : public QWidget
{
    Q_OBJECT

public:
    explicit FormPage(QWidget* parent = nullptr);

    /// A label as it is heard: without the mark of its key, in "&Year" and in "年(&Y)" alike.
    static QString withoutMnemonic(QString label);
    /// A field for a row; `name` is its accessible one.
    static QLineEdit* makeField(const char* objectName, const QString& name);

    /// A heading with a line of explanation under it, over the whole width.
    void addHeading(const QString& title, const QString& explanation);
    /// The label names the control for a screen reader and takes its focus. An empty one leaves the column
    /// free.
    QLabel* addRow(const QString& label, QWidget* control);
    /// Controls beside each other in one row.
    QLabel* addRow(const QString& label, const QList<QWidget*>& controls);
    /// Dim text under the controls' column.
    QLabel* addNote(const QString& text = QString());
    /// A widget without a label, as wide as labels and controls together; `stretch` is its share of the
    /// height that is left.
    void addWide(QWidget* widget, int stretch);
    void addLine();
    /// Takes the space that is left; after the last row.
    void addStretch();

private:
    QGridLayout* m_grid;
    int m_row = 0;
};

} // namespace tessera
