#include "platform/desktopentry.h"

#include <QStringTokenizer>
#include <QUrl>

namespace tessera {

namespace {

// The value of a key of the main group.
QString valueOf(const QString& text, QLatin1StringView key)
{
    bool inGroup = false;
    for (QStringView line : QStringTokenizer(text, QLatin1Char('\n'))) {
        line = line.trimmed();
        if (line.startsWith(QLatin1Char('[')))
            inGroup = line == QLatin1String("[Desktop Entry]");
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        if (inGroup && equals > 0 && line.first(equals).trimmed() == key)
            return line.sliced(equals + 1).trimmed().toString();
    }
    return QString();
}

// Escapes are those of any value first, and those of a quoted argument after that.
QString unescaped(const QString& value)
{
    QString text;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (value[i] != u'\\' || i + 1 == value.size()) {
            text += value[i];
            continue;
        }
        const QChar next = value[++i];
        text += next == u's' ? u' '
            : next == u'n'   ? u'\n'
            : next == u't'   ? u'\t'
            : next == u'r'   ? u'\r'
                             : next;
    }
    return text;
}

// Not QProcess::splitCommand(): it knows no backslash before a quotation mark.
QStringList parted(const QString& command)
{
    QStringList words;
    bool isQuoted = false;
    bool isWord = false;
    QString word;
    for (qsizetype i = 0; i < command.size(); ++i) {
        const QChar c = command[i];
        if (c == u'"') {
            isQuoted = !isQuoted;
            isWord = true;
        } else if (isQuoted && c == u'\\' && i + 1 < command.size()) {
            word += command[++i];
        } else if (!isQuoted && c == u' ') {
            if (isWord)
                words << std::exchange(word, {});
            isWord = false;
        } else {
            word += c;
            isWord = true;
        }
    }
    if (isWord)
        words << word;
    return words;
}

// A value of any key.
QString escaped(QString value)
{
    value.replace(QStringLiteral("\\"), QStringLiteral("\\\\"));
    value.replace(QStringLiteral("\n"), QStringLiteral("\\n"));
    value.replace(QStringLiteral("\r"), QStringLiteral("\\r"));
    value.replace(QStringLiteral("\t"), QStringLiteral("\\t"));
    return value;
}

// An argument within Exec, always in quotes.
QString argument(QString word)
{
    for (const char c : {'\\', '"', '`', '$'})
        word.replace(QLatin1Char(c), QStringLiteral("\\") + QString(QLatin1Char(c)));
    word.replace(QLatin1Char('%'), QStringLiteral("%%"));
    return QLatin1Char('"') + word + QLatin1Char('"');
}

} // namespace

std::optional<QStringList> desktopEntryCommand(const QByteArray& entry, const QString& file)
{
    QStringList command;
    bool hasFile = false;
    for (QString word : parted(unescaped(valueOf(QString::fromUtf8(entry), QLatin1StringView("Exec"))))) {
        if (word == u"%f" || word == u"%F" || word == u"%u" || word == u"%U") {
            const bool isUrl = word[1].toLower() == u'u';
            word = isUrl ? QUrl::fromLocalFile(file).toString(QUrl::FullyEncoded) : file;
            hasFile = true;
        } else if (word.size() == 2 && word[0] == u'%' && word[1] != u'%') {
            continue; // icon, name and the like
        } else {
            word.replace(QStringLiteral("%%"), QStringLiteral("%"));
        }
        command << word;
    }
    if (command.isEmpty())
        return std::nullopt;
    if (!hasFile)
        command << file;
    return command;
}

QByteArray desktopEntry(const QString& name, const QStringList& command, const QString& folder,
                        const QString& icon)
{
    QStringList words;
    for (const QString& word : command)
        words << argument(word);
    const QString text = QStringLiteral("[Desktop Entry]\nType=Application\nName=") + escaped(name)
        + QStringLiteral("\nExec=") + escaped(words.join(QLatin1Char(' '))) + QStringLiteral("\nPath=")
        + escaped(folder) + (icon.isEmpty() ? QString() : QStringLiteral("\nIcon=") + escaped(icon))
        + QStringLiteral("\nTerminal=false\nCategories=Game;\n");
    return text.toUtf8();
}

} // namespace tessera
