#include "launch/ui/commandlinefoot.h"

#include <QAbstractTextDocumentLayout>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QMimeData>
#include <QPushButton>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextEdit>
#include <QTextLayout>

namespace tessera {

namespace {

constexpr int shownLines = 3;
constexpr QChar joiner(0x2060);

// Lines would be broken behind the hyphens of options.
QString unbroken(QString text)
{
    return text.replace(QLatin1Char('-'), QLatin1Char('-') + QString(joiner));
}

/// What is copied out of it is the line as it was.
class Text : public QTextEdit
{
public:
    using QTextEdit::QTextEdit;

protected:
    QMimeData* createMimeDataFromSelection() const override
    {
        auto* mime = new QMimeData;
        mime->setText(textCursor().selectedText().remove(joiner));
        return mime;
    }
};

} // namespace

CommandLineFoot::CommandLineFoot(QWidget* parent)
    : QWidget(parent)
    , commandLineText(new Text(this))
    , copyButton(new QPushButton(qtTrId("commandline_copy"), this))
{
    commandLineText->setObjectName(QStringLiteral("commandLineText"));
    commandLineText->setAccessibleName(qtTrId("commandline_name"));
    commandLineText->setProperty("role", QStringLiteral("commandline"));
    commandLineText->setReadOnly(true);
    commandLineText->setTabChangesFocus(true);
    commandLineText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    commandLineText->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    commandLineText->document()->setDocumentMargin(0);
    copyButton->setObjectName(QStringLiteral("copyButton"));
    copyButton->setToolTip(qtTrId("commandline_copytip"));

    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(8);
    layout->addWidget(commandLineText, 1);
    layout->addWidget(copyButton);
    connect(copyButton, &QPushButton::clicked, this, &CommandLineFoot::copy);
}

void CommandLineFoot::showLine(const QString& executable, const CommandLine& line)
{
    const QString text = shellWords(QStringList{executable} + line.arguments);
    const QString struck = line.leftOut.join(QLatin1Char(' '));
    const QString shown = unbroken(struck.isEmpty() ? text : text + QLatin1Char(' ') + struck);
    m_text = text;
    // A selection is not lost to what changes nothing.
    if (commandLineText->toPlainText() == shown)
        return;
    commandLineText->clear();
    QTextCursor cursor(commandLineText->document());
    QTextCharFormat format;
    cursor.insertText(unbroken(text), format);
    showWholeLines();
    if (struck.isEmpty())
        return;
    cursor.insertText(QStringLiteral(" "), format);
    format.setFontStrikeOut(true);
    format.setToolTip(qtTrId("commandline_leftout"));
    cursor.insertText(unbroken(struck), format);
}

// And no part of one more. The lines are higher than the font says: it has no joiner.
void CommandLineFoot::showWholeLines()
{
    const QTextBlock first = commandLineText->document()->firstBlock();
    commandLineText->document()->documentLayout()->blockBoundingRect(first);
    // Nothing is laid out yet where nobody sees it.
    if (first.layout()->lineCount() == 0)
        return;
    const double line = first.layout()->lineAt(0).height();
    commandLineText->setFixedHeight(qRound(line * shownLines)
                                    + 2 * std::max(1, commandLineText->frameWidth()));
}

void CommandLineFoot::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    showWholeLines();
}

void CommandLineFoot::copy()
{
    QGuiApplication::clipboard()->setText(m_text);
}

} // namespace tessera
