#include "catalogue/ui/searchfield.h"

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
        const QString name
            = QString::fromUtf8(key.name.data(), static_cast<qsizetype>(key.name.size())) + u':';
        QAction* action = m_terms->addAction(name + u'\t' + qtTrId(key.help));
        connect(action, &QAction::triggered, this, [this, name] {
            end(false);
            const bool needsBlank = !text().isEmpty() && !text().endsWith(u' ');
            insert((needsBlank ? QStringLiteral(" ") : QString()) + name);
            setFocus();
        });
    }
}

// A line edit takes formats for its text only as an input method sends them.
void SearchField::markWrongTerms(const Query& query)
{
    QTextCharFormat wrong;
    wrong.setUnderlineStyle(QTextCharFormat::WaveUnderline);
    wrong.setUnderlineColor(theme::color("preliminary"));
    wrong.setForeground(theme::color("preliminary"));
    QList<QInputMethodEvent::Attribute> formats;
    for (const Term& term : query.terms()) {
        if (term.state == Term::State::Wrong)
            formats.emplace_back(QInputMethodEvent::TextFormat,
                                 static_cast<int>(term.begin) - cursorPosition(), static_cast<int>(term.size),
                                 wrong);
    }
    QInputMethodEvent event(QString(), formats);
    QLineEdit::inputMethodEvent(&event);
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
