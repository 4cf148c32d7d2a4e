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
    explicit RowsList(RowsModel& model, QWidget* parent = nullptr);

    void setEmptyText(const QString& text);
    QString emptyText() const;
    /// What became of it is the longer text, and gets the room.
    void setNameWidth(int width);
    /// Sorted by no column any more.
    void dropSort();

Q_SIGNALS:
    /// A row was opened by a double click or by Return.
    void opened(const QString& name);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void showEmptyText();

    QLabel* m_empty;
};

} // namespace tessera
