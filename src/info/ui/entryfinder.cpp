#include "info/ui/entryfinder.h"

#include "widgets/theme.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>

namespace tessera {

namespace {
// No more are marked, since each costs time at every paint.
constexpr qsizetype mostPlaces = 1000;
}

EntryFinder::EntryFinder(QPlainTextEdit& text, QLineEdit& field, QLabel& count, QObject* parent)
    : QObject(parent)
    , m_text(text)
    , m_field(field)
    , m_count(count)
{
    connect(&field, &QLineEdit::textChanged, this, [this] {
        mark();
        if (!m_places.isEmpty())
            select(0);
    });
    field.installEventFilter(this);
}

void EntryFinder::mark()
{
    m_places.clear();
    m_place = -1;
    const QString wanted = m_field.text();
    QTextCursor at(m_text.document());
    while (!wanted.isEmpty() && m_places.size() < mostPlaces) {
        at = m_text.document()->find(wanted, at);
        if (at.isNull())
            break;
        m_places << at;
    }
    QList<QTextEdit::ExtraSelection> marks;
    QTextCharFormat format;
    format.setBackground(theme::color("selection"));
    for (const QTextCursor& place : m_places)
        marks << QTextEdit::ExtraSelection{place, format};
    m_text.setExtraSelections(marks);
    if (m_places.isEmpty())
        m_count.setText(wanted.isEmpty() ? QString() : qtTrId("history_not_found"));
    else
        m_count.setText(QString::number(m_places.size()));
}

void EntryFinder::select(qsizetype place)
{
    m_place = place;
    m_text.setTextCursor(m_places[place]);
    m_text.ensureCursorVisible();
    const QLocale locale;
    m_count.setText(
        qtTrId("history_found_of").arg(locale.toString(place + 1), locale.toString(m_places.size())));
    QList<QTextEdit::ExtraSelection> marks = m_text.extraSelections();
    for (qsizetype i = 0; i < marks.size(); ++i) {
        marks[i].format.setBackground(theme::color(i == place ? "accent" : "selection"));
        marks[i].format.setForeground(theme::color(i == place ? "onaccent" : "text"));
    }
    m_text.setExtraSelections(marks);
}

void EntryFinder::findNext()
{
    if (!m_places.isEmpty())
        select((m_place + 1) % m_places.size());
}

void EntryFinder::findPrevious()
{
    if (!m_places.isEmpty())
        select((m_place > 0 ? m_place : m_places.size()) - 1);
}

bool EntryFinder::eventFilter(QObject* object, QEvent* event)
{
    // Otherwise Escape would close the window.
    if (event->type() == QEvent::ShortcutOverride && !m_field.text().isEmpty()
        && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape)
        event->accept();
    if (event->type() == QEvent::KeyPress) {
        const auto* press = static_cast<QKeyEvent*>(event);
        if (press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter) {
            if (press->modifiers().testFlag(Qt::ShiftModifier))
                findPrevious();
            else
                findNext();
            return true;
        }
        if (press->key() == Qt::Key_Escape && !m_field.text().isEmpty()) {
            m_field.clear();
            return true;
        }
    }
    return QObject::eventFilter(object, event);
}

} // namespace tessera
