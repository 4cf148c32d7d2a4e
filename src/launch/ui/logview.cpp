#include "launch/ui/logview.h"

#include <QMimeData>
#include <QTextBlock>
#include <QTextDocument>

namespace tessera {

namespace {

constexpr int longestLine = 4096;
// The state of a block that goes on in the next one.
constexpr int goesOn = 1;

bool endsLine(QChar c)
{
    return c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QChar::ParagraphSeparator;
}

// Where the first line that is too long has to be parted; the size of the text where none is. `column` is the
// length of the line that the text continues.
qsizetype partingPlace(QStringView text, int column)
{
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (endsLine(text[i]))
            column = 0;
        else if (++column > longestLine && !text[i].isLowSurrogate())
            return i;
    }
    return text.size();
}

} // namespace

LogView::LogView(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setProperty("role", QStringLiteral("log"));
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
        const qsizetype place = partingPlace(rest, cursor.block().length() - 1);
        cursor.insertText(rest.first(place).toString(), format);
        rest = rest.mid(place);
        if (!rest.isEmpty()) {
            cursor.block().setUserState(goesOn);
            cursor.insertBlock();
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
        if (last >= block.length() && block.userState() != goesOn)
            text += QLatin1Char('\n');
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
