#include "catalogue/ui/searchfield.h"

#include "catalogue/recorddictionary.h"
#include "catalogue/search/query.h"
#include "widgets/theme.h"

#include <QAction>
#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTextCharFormat>

namespace tessera {

namespace {

// As it was typed: no letter of it is to be pressed, and a page that was pasted has no room.
QString asMenuText(const QString& search)
{
    constexpr qsizetype most = 60;
    QString text = search.size() > most ? QString(search.left(most) + u'…') : search;
    return text.replace(u'&', QLatin1String("&&"));
}

} // namespace

SearchField::SearchField(QWidget* parent)
    : QLineEdit(parent)
    , m_terms(new QMenu(this))
    , m_last(new QMenu(this))
    , m_keep(new QAction(qtTrId("search_keep"), this))
{
    setObjectName(QStringLiteral("titleSearchField"));
    setPlaceholderText(qtTrId("search_placeholder"));
    setAccessibleName(qtTrId("search_field"));
    setClearButtonEnabled(true);
    setMinimumWidth(200);
    addAction(theme::icon(QStringLiteral("search"), "faint"), LeadingPosition);
    m_terms->setToolTipsVisible(true);
    fillTermsMenu();
    connect(addMenu("terms", qtTrId("search_terms")), &QAction::triggered, this,
            [this] { openBeneath(*m_terms); });
    connect(this, &QLineEdit::returnPressed, this, &SearchField::searched);
}

void SearchField::offerSearches()
{
    m_offersSearches = true;
    connect(addMenu("last", qtTrId("search_last")), &QAction::triggered, this,
            &SearchField::openLastSearches);
    m_terms->addSeparator();
    m_terms->addAction(m_keep);
    m_keep->setEnabled(false);
    connect(m_keep, &QAction::triggered, this, &SearchField::keepWanted);
    connect(this, &QLineEdit::textChanged, m_keep,
            [this](const QString& text) { m_keep->setEnabled(!text.simplified().isEmpty()); });
    setLastSearches({});
}

QAction* SearchField::addMenu(const char* icon, const QString& name)
{
    QAction* action = addAction(theme::icon(QLatin1StringView(icon), "dim"), TrailingPosition);
    action->setToolTip(name);
    action->setText(name);
    return action;
}

void SearchField::openBeneath(QMenu& menu)
{
    menu.popup(mapToGlobal(QPoint(width() - menu.sizeHint().width(), height())));
}

void SearchField::setLastSearches(const QStringList& searches)
{
    m_last->clear();
    for (const QString& search : searches) {
        QAction* action = m_last->addAction(asMenuText(search));
        connect(action, &QAction::triggered, this, [this, search] {
            setText(search);
            setFocus();
        });
    }
    if (searches.isEmpty()) {
        m_last->addAction(qtTrId("search_last_none"))->setEnabled(false);
    } else {
        m_last->addSeparator();
        connect(m_last->addAction(qtTrId("search_last_forget")), &QAction::triggered, this,
                &SearchField::forgetWanted);
    }
}

void SearchField::openLastSearches()
{
    openBeneath(*m_last);
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

void SearchField::beginSearch()
{
    activateWindow();
    setFocus(Qt::ShortcutFocusReason);
    selectAll();
}

void SearchField::beginWith(const QString& typed)
{
    setFocus(Qt::ShortcutFocusReason);
    end(false);
    insert(typed);
}

void SearchField::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Down && event->modifiers().testFlag(Qt::AltModifier) && m_offersSearches) {
        openLastSearches();
    } else if (event->key() == Qt::Key_Down) {
        Q_EMIT searched();
        Q_EMIT leftDownwards();
    } else if (event->key() == Qt::Key_Escape && !text().isEmpty()) {
        clear();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

// Who looks into a menu or at another program has not left it.
void SearchField::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    const Qt::FocusReason why = event->reason();
    if (why != Qt::PopupFocusReason && why != Qt::MenuBarFocusReason && why != Qt::ActiveWindowFocusReason)
        Q_EMIT searched();
}

void SearchField::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addSeparator();
    menu->addAction(qtTrId("search_terms"), this, [this] { openBeneath(*m_terms); });
    if (m_offersSearches) {
        menu->addAction(m_keep);
        menu->addAction(qtTrId("search_last"), this, &SearchField::openLastSearches);
    }
    menu->popup(event->globalPos());
}

} // namespace tessera
