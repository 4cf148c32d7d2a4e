#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace tessera {

/// What a list shows instead of rows: one sentence that says what to do next, and the button that does it.
class EmptyState : public QWidget
{
    Q_OBJECT

public:
    explicit EmptyState(QWidget* parent = nullptr);

    /// Without a button where its text is empty.
    void showReason(const QString& sentence, const QString& button);

Q_SIGNALS:
    void acted();

private:
    QLabel* m_sentence;
    QPushButton* m_button;
};

} // namespace tessera
