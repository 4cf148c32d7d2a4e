#include "catalogue/ui/searchfield.h"

#include "catalogue/recorddictionary.h"
#include "catalogue/search/query.h"
#include "widgets/theme.h"

#include <QAction>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTextCharFormat>

namespace tessera {

SearchField::SearchField(QWidget* parent)
    : QLineEdit(parent)
    , m_terms(new QMenu(this))
{
    setObjectName(QStringLiteral("titleSearchField"));
    setPlaceholderText(qtTrId("search_placeholder"));
    setAccessibleName(qtTrId("search_field"));
    setClearButtonEnabled(true);
    setMinimumWidth(200);
    addAction(theme::icon(QStringLiteral("search"), "faint"), LeadingPosition);
    QAction* terms = addAction(theme::icon(QStringLiteral("terms"), "dim"), TrailingPosition);
    terms->setToolTip(qtTrId("search_terms"));
    terms->setText(qtTrId("search_terms"));
    m_terms->setToolTipsVisible(true);
    fillTermsMenu();
    connect(terms, &QAction::triggered, this,
            [this] { m_terms->popup(mapToGlobal(QPoint(width() - m_terms->sizeHint().width(), height()))); });
}

// Each puts its key into the field, where the value is typed behind it.
void SearchField::fillTermsMenu()
{
    for (const SearchKey& key : searchKeys) {
        const QString name = fieldText(key.name) + u':';
        QAction* action = m_terms->addAction(name + u'\t' + qtTrId(key.help));
        connect(action, &QAction::triggered, this, [this, name] {
            end(false);
            const bool needsBlank = !text().isEmpty() && !text().endsWith(u' ');
            insert((needsBlank ? QStringLiteral(" ") : QString()) + name);
            setFocus();
        });
    }
}

void SearchField::markTerms(const Query& query)
{
    m_marks.clear();
    for (const Term& term : query.terms()) {
        if (term.state != Term::State::Good)
            m_marks.push_back({static_cast<int>(term.begin), static_cast<int>(term.size),
                               term.state == Term::State::Wrong});
    }
    // While something is composed its next event brings the marks along.
    if (m_isComposing)
        return;
    QInputMethodEvent event;
    inputMethodEvent(&event);
}

// A line edit takes formats for its text only as an input method sends them.
void SearchField::inputMethodEvent(QInputMethodEvent* event)
{
    const QString preedit = event->preeditString();
    m_isComposing = !preedit.isEmpty();
    QList<QInputMethodEvent::Attribute> attributes = event->attributes();
    const auto behind = static_cast<int>(preedit.size());
    for (const Mark& mark : m_marks) {
        QTextCharFormat format;
        format.setUnderlineStyle(mark.isWrong ? QTextCharFormat::WaveUnderline : QTextCharFormat::DotLine);
        format.setUnderlineColor(theme::color(mark.isWrong ? "preliminary" : "dim"));
        format.setForeground(theme::color(mark.isWrong ? "preliminary" : "dim"));
        const int begin = mark.begin - cursorPosition();
        attributes.emplace_back(QInputMethodEvent::TextFormat, begin < 0 ? begin : begin + behind, mark.size,
                                format);
    }
    QInputMethodEvent marked(preedit, attributes);
    marked.setCommitString(event->commitString(), event->replacementStart(), event->replacementLength());
    QLineEdit::inputMethodEvent(&marked);
    event->setAccepted(marked.isAccepted());
}

void SearchField::composeOn(QInputMethodEvent* event)
{
    beginWith(QString());
    inputMethodEvent(event);
}

void SearchField::beginWith(const QString& typed)
{
    setFocus(Qt::ShortcutFocusReason);
    end(false);
    insert(typed);
}

void SearchField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down) {
        Q_EMIT leftDownwards();
    } else if (event->key() == Qt::Key_Escape && !text().isEmpty()) {
        clear();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

} // namespace tessera
