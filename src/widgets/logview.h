#pragma once

#include <QPlainTextEdit>

namespace tessera {

/// Text that only grows, of any size. A line too long to be laid out in time is shown in several, while
/// text() and what is copied hold it as it was appended.
class LogView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit LogView(QWidget* parent = nullptr);

    /// Puts text in place of everything.
    void replace(const QString& text);
    /// Adds text at the end in a colour; nothing scrolls.
    void append(const QString& text, const QColor& color);

    QString text() const;
    bool isEmpty() const;

protected:
    QMimeData* createMimeDataFromSelection() const override;

private:
    QString textBetween(int start, int end) const;
};

} // namespace tessera
