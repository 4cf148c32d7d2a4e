#pragma once

#include <QObject>
#include <QTextCursor>

class QLabel;
class QLineEdit;
class QPlainTextEdit;

namespace tessera {

/// Finds a text within another while it is typed: all its places are marked, one of them is selected, and
/// Return goes on to the next one.
class EntryFinder : public QObject
{
    Q_OBJECT

public:
    EntryFinder(QPlainTextEdit& text, QLineEdit& field, QLabel& count, QObject* parent = nullptr);

public Q_SLOTS:
    void findNext();
    void findPrevious();
    /// Marks what is found without moving to it; for a text that has changed.
    void mark();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void select(qsizetype place);

    QPlainTextEdit& m_text;
    QLineEdit& m_field;
    QLabel& m_count;
    QList<QTextCursor> m_places;
    qsizetype m_place = -1;
};

} // namespace tessera
