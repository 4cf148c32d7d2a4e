#pragma once

#include <QTableView>

class QLabel;

namespace tessera {

class RowsModel;

/// Shows a tool's rows; says in a sentence what to do while there are none.
class RowsList : public QTableView
{
    Q_OBJECT

public:
    RowsList(RowsModel& model, const QString& name, QWidget* parent = nullptr);

    void setEmptyText(const QString& text);
    QString emptyText() const;
    /// Sorted by no column any more.
    void dropSort();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showEmptyText();

    QLabel* m_empty;
};

} // namespace tessera
