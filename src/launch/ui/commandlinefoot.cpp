#include "launch/ui/commandlinefoot.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QPushButton>
#include <QTextCursor>
#include <QTextEdit>

namespace tessera {

namespace {
constexpr int shownLines = 3;
}

CommandLineFoot::CommandLineFoot(QWidget* parent)
    : QWidget(parent)
    , commandLineText(new QTextEdit(this))
    , copyButton(new QPushButton(qtTrId("commandline_copy"), this))
{
    commandLineText->setObjectName(QStringLiteral("commandLineText"));
    commandLineText->setAccessibleName(qtTrId("commandline_name"));
    commandLineText->setProperty("role", QStringLiteral("commandline"));
    commandLineText->setReadOnly(true);
    commandLineText->setTabChangesFocus(true);
    commandLineText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    commandLineText->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    commandLineText->setFixedHeight(commandLineText->fontMetrics().lineSpacing() * shownLines + 8);
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
    const QString shown = struck.isEmpty() ? text : text + QLatin1Char(' ') + struck;
    m_text = text;
    // A selection is not lost to what changes nothing.
    if (commandLineText->toPlainText() == shown)
        return;
    commandLineText->clear();
    QTextCursor cursor(commandLineText->document());
    QTextCharFormat format;
    cursor.insertText(text, format);
    if (struck.isEmpty())
        return;
    cursor.insertText(QStringLiteral(" "), format);
    format.setFontStrikeOut(true);
    format.setToolTip(qtTrId("commandline_leftout"));
    cursor.insertText(struck, format);
}

void CommandLineFoot::copy()
{
    QGuiApplication::clipboard()->setText(m_text);
}

} // namespace tessera
