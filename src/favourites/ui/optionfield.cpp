#include "favourites/ui/optionfield.h"

#include "favourites/optionwords.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QStandardItemModel>

namespace tessera {

namespace {

constexpr int optionRole = Qt::UserRole + 1;
constexpr qsizetype shortestProposed = 2; // a minus and a letter

} // namespace

OptionField::OptionField(QWidget* parent)
    : QLineEdit(parent)
    , m_completer(new QCompleter(this))
    , m_options(new QStandardItemModel(this))
{
    m_completer->setModel(m_options);
    m_completer->setCompletionRole(optionRole);
    m_completer->setCaseSensitivity(Qt::CaseSensitive);
    m_completer->setMaxVisibleItems(12);
    // Not as the field's own: that would complete the whole text.
    m_completer->setWidget(this);
    connect(this, &QLineEdit::textEdited, this, &OptionField::propose);
    connect(m_completer, qOverload<const QString&>(&QCompleter::activated), this, &OptionField::takeOption);
}

void OptionField::setKnownOptions(const QList<KnownOption>& options)
{
    m_options->clear();
    for (const KnownOption& known : options) {
        const bool isBare = known.description.isEmpty();
        auto* item = new QStandardItem(isBare ? known.option
                                              : known.option + QStringLiteral("   ") + known.description);
        item->setData(known.option, optionRole);
        m_options->appendRow(item);
    }
}

void OptionField::propose()
{
    const QString word = wordBefore(text(), cursorPosition()).word;
    m_completer->setCompletionPrefix(word);
    const bool isOption = word.size() >= shortestProposed && word.startsWith(QLatin1Char('-'));
    if (isOption && m_completer->completionCount() > 0 && m_completer->currentCompletion() != word)
        m_completer->complete();
    else
        m_completer->popup()->hide();
}

// The list takes it: what is half typed is no option yet.
void OptionField::keyPressEvent(QKeyEvent* event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn && m_completer->popup()->isVisible() && m_completer->popup()->currentIndex().isValid())
        event->ignore();
    else
        QLineEdit::keyPressEvent(event);
}

void OptionField::takeOption(const QString& option)
{
    const WordAt word = wordBefore(text(), cursorPosition());
    setSelection(static_cast<int>(word.begin), static_cast<int>(word.word.size()));
    insert(option);
}

} // namespace tessera
