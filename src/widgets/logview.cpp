#include "widgets/logview.h"

#include "widgets/myscrollers.h"

#include <QMimeData>
#include <QTextBlock>
#include <QTextDocument>

namespace tessera {

namespace {

constexpr int longestLine = 4096;

// What stood between a block and the next one, kept as the block's state where it was no line feed: nothing,
// the character, or a line feed behind a carriage return.
constexpr int nothing = 0;
constexpr int bothEnds = ('\r' << 8) | '\n';

bool isLineFeed(QChar c)
{
    return c == QLatin1Char('\n');
}

// The other characters that a document makes a block of and forgets.
bool isOtherEnd(QChar c)
{
    return c == QLatin1Char('\r') || c == QChar::ParagraphSeparator || c == QChar(0xFDD0)
        || c == QChar(0xFDD1);
}

// How much of the text goes into the document as it stands: all up to such a character, or to where a line is
// too long. `column` is the length of the line that the text continues.
qsizetype plainLength(QStringView text, int column)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (isOtherEnd(text[i]))
            return i;
        if (isLineFeed(text[i]))
            column = 0;
        else if (++column > longestLine && !text[i].isLowSurrogate())
            return i;
    }
    return text.size();
}

QString endOf(const QTextBlock& block)
{
    switch (const int state = block.userState()) {
    case -1:
        return QStringLiteral("\n");
    case nothing:
        return QString();
    case bothEnds:
        return QStringLiteral("\r\n");
    default:
        return QString(QChar(state));
    }
}

void startBlock(QTextCursor& cursor, int state)
{
    cursor.block().setUserState(state);
    cursor.insertBlock();
}

bool isBehindCarriageReturn(const QTextCursor& cursor)
{
    return cursor.atBlockStart() && cursor.block().previous().userState() == '\r';
}

} // namespace

LogView::LogView(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setProperty("role", QStringLiteral("log"));
    setVerticalScrollBar(new MyScrollers(Qt::Vertical));
    setHorizontalScrollBar(new MyScrollers(Qt::Horizontal));
}

void LogView::replace(const QString& text)
{
    setPlainText(QString());
    append(text, palette().color(QPalette::Text));
}

void LogView::append(const QString& text, const QColor& color)
{
    QTextCharFormat format;
    format.setForeground(color);
    QTextCursor cursor(document());
    cursor.beginEditBlock();
    cursor.movePosition(QTextCursor::End);
    QStringView rest = text;
    while (!rest.isEmpty()) {
        if (isLineFeed(rest.front()) && isBehindCarriageReturn(cursor)) {
            cursor.block().previous().setUserState(bothEnds);
            rest = rest.mid(1);
            continue;
        }
        const qsizetype plain = plainLength(rest, cursor.positionInBlock());
        cursor.insertText(rest.first(plain).toString(), format);
        rest = rest.mid(plain);
        if (rest.isEmpty())
            break;
        if (isOtherEnd(rest.front())) {
            startBlock(cursor, rest.front().unicode());
            rest = rest.mid(1);
        } else {
            startBlock(cursor, nothing);
        }
    }
    cursor.endEditBlock();
}

QString LogView::text() const
{
    return textBetween(0, document()->characterCount() - 1);
}

bool LogView::isEmpty() const
{
    return document()->isEmpty();
}

QString LogView::textBetween(int start, int end) const
{
    QString text;
    for (QTextBlock block = document()->findBlock(start); block.isValid() && block.position() <= end;
         block = block.next()) {
        const int first = std::max(start - block.position(), 0);
        const int last = end - block.position();
        text += QStringView(block.text()).mid(first, last - first);
        if (last >= block.length())
            text += endOf(block);
    }
    return text;
}

QMimeData* LogView::createMimeDataFromSelection() const
{
    auto* mime = new QMimeData;
    mime->setText(textBetween(textCursor().selectionStart(), textCursor().selectionEnd()));
    return mime;
}

} // namespace tessera
