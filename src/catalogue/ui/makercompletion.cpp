#include "catalogue/ui/makercompletion.h"

#include "catalogue/search/query.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStringListModel>

#include <algorithm>

namespace tessera {

MakerCompletion::MakerCompletion(QLineEdit& field, Holds holds, Makers makers)
    : QObject(&field)
    , m_field(field)
    , m_holds(holds)
    , m_makers(std::move(makers))
    , m_offered(new QStringListModel(this))
    , m_completer(new QCompleter(m_offered, this))
{
    // Which makers fit was decided before: the completer's own comparison is left out.
    m_completer->setWidget(&field);
    m_completer->setMaxVisibleItems(10);
    m_completer->popup()->setObjectName(QStringLiteral("makerPopup"));
    m_completer->popup()->setAccessibleName(qtTrId("makers_popup"));
    m_completer->popup()->setProperty("role", QStringLiteral("choice"));
    connect(m_completer, qOverload<const QString&>(&QCompleter::activated), this, &MakerCompletion::write);
    connect(&field, &QLineEdit::textEdited, this, &MakerCompletion::offer);
    field.installEventFilter(this);
    // Behind the completer's own filter, and so asked before it.
    m_completer->popup()->installEventFilter(this);
}

// What the user is about to write for a maker; the cursor stands at its end.
std::optional<MakerCompletion::Place> MakerCompletion::place() const
{
    const QString text = m_field.text();
    const qsizetype cursor = m_field.cursorPosition();
    if (m_holds == Holds::Maker)
        return cursor == text.size() && cursor > 0 ? std::optional(Place{0, cursor, text}) : std::nullopt;
    const Query query(text);
    for (const Term& term : query.terms()) {
        if (term.kind != TermKind::Maker || term.begin + term.size != cursor || term.isClosed)
            continue;
        const qsizetype begin = term.valueBegin + (term.isQuoted ? 1 : 0);
        return Place{term.valueBegin, cursor - term.valueBegin, text.sliced(begin, cursor - begin)};
    }
    return std::nullopt;
}

void MakerCompletion::offer()
{
    const auto at = place();
    if (!at || m_isComposing || !m_field.hasFocus())
        return m_completer->popup()->hide();
    const QStringList makers = fitting(at->begun);
    if (makers.isEmpty() || makers == QStringList{at->begun})
        return m_completer->popup()->hide();
    m_offered->setStringList(makers);
    m_completer->setCompletionPrefix(QString());
    m_completer->complete();
    // The completer does not know of the padding that the list has.
    QAbstractItemView* popup = m_completer->popup();
    const auto rows = std::min(static_cast<int>(makers.size()), m_completer->maxVisibleItems());
    popup->resize(popup->width(),
                  popup->height() + rows * popup->sizeHintForRow(0) - popup->viewport()->height());
}

QStringList MakerCompletion::fitting(const QString& begun) const
{
    QStringList makers = m_makers(begun);
    if (m_holds == Holds::Search)
        makers.removeIf([](const QString& maker) { return !writtenValue(maker); });
    return makers;
}

void MakerCompletion::write(const QString& maker)
{
    const auto at = place();
    if (!at)
        return;
    const QString written = m_holds == Holds::Search ? writtenValue(maker).value_or(maker) + u' ' : maker;
    // As if it were typed: it can be undone.
    m_field.setSelection(static_cast<int>(at->begin), static_cast<int>(at->size));
    m_field.insert(written);
    m_completer->popup()->hide();
}

bool MakerCompletion::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == &m_field && event->type() == QEvent::InputMethod) {
        m_isComposing = !static_cast<QInputMethodEvent*>(event)->preeditString().isEmpty();
        if (m_isComposing)
            m_completer->popup()->hide();
    } else if (watched == m_completer->popup() && event->type() == QEvent::KeyPress) {
        return takeKey(static_cast<QKeyEvent*>(event)->key());
    }
    return QObject::eventFilter(watched, event);
}

// The completer would hand these to the field first, which empties itself or starts a game.
bool MakerCompletion::takeKey(int key)
{
    QAbstractItemView* popup = m_completer->popup();
    const bool isChosen = popup->selectionModel()->hasSelection();
    const bool chooses = key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab;
    if (key == Qt::Key_Escape) {
        popup->hide();
        return true;
    }
    const QString chosen = popup->currentIndex().data().toString();
    if (chooses)
        popup->hide();
    if (chooses && isChosen)
        write(chosen);
    return chooses && isChosen;
}

} // namespace tessera
