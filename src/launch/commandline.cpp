#include "launch/commandline.h"

#include "launch/argumentsarray.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

namespace tessera {

namespace {

constexpr QLatin1Char folderSeparator(';');

// A program of today wants a short name; it finds the archive when its folder comes first among the ROM
// folders: the one that we send, or else the program's own, which are not looked in once we send any.
void putFolderFirst(const QString& folder, const QString& romFolders, QStringList& arguments)
{
    const QString option = QStringLiteral("-rompath");
    // The builder sends its own ROM folder last.
    if (const qsizetype at = arguments.size() - 2; at >= 0 && arguments[at] == option)
        arguments[at + 1].prepend(folder + folderSeparator);
    else if (romFolders.isEmpty())
        arguments << option << folder;
    else
        arguments << option << folder + folderSeparator + romFolders;
}

bool takesLogFile(const QString& folder)
{
    const QFileInfo log(folder + QStringLiteral("/error.log"));
    return log.exists() ? log.isWritable() : QFileInfo(folder).isWritable();
}

// The place of the option in the builder's list, where a value may read the same; -1 for none.
qsizetype logOption(const QStringList& built)
{
    const QString option = QStringLiteral("-log");
    qsizetype at = built.indexOf(option);
    while (at > 0 && takesValue(built[at - 1]))
        at = built.indexOf(option, at + 1);
    return at;
}

void leaveUnwritableLogOut(CommandLine& line, const QString& folder)
{
    const qsizetype log = logOption(line.arguments);
    if (folder.isEmpty() || log < 0 || takesLogFile(folder))
        return;
    line.leftOut << line.arguments.takeAt(log);
    line.unwritable = folder;
}

} // namespace

QString CommandLine::leftOutLine() const
{
    if (leftOut.isEmpty())
        return QString();
    const QString line
        = qtTrId("launch_leftout").replace(QStringLiteral("%1"), leftOut.join(QStringLiteral(", ")));
    return unwritable.isEmpty()
        ? line
        : line + QLatin1Char(' ') + qtTrId("launch_nolog").replace(QStringLiteral("%1"), unwritable);
}

CommandLine commandLine(const std::optional<EmulatorProfile>& profile, const QString& game,
                        const QStringList& built, const QStringList& own, const QString& where)
{
    if (!profile)
        return {QStringList{game} + built + own, {}};
    auto [arguments, leftOut] = profile->fit(built);
    CommandLine line{arguments, leftOut};
    leaveUnwritableLogOut(line, where);
    const QString folder = QFileInfo(game).path();
    // A folder with a separator in its name would read as two.
    const bool goesByName = QDir::isAbsolutePath(game) && !folder.contains(folderSeparator);
    if (goesByName)
        putFolderFirst(folder, profile->romFolders(), line.arguments);
    line.arguments = QStringList{goesByName ? gameName(game) : game} + line.arguments + own;
    return line;
}

QStringList ownOptions(const QString& text)
{
    return text.isEmpty() ? QStringList() : text.split(QLatin1Char(' '));
}

QString shellWords(const QStringList& words)
{
    static const QRegularExpression odd(QStringLiteral("[^A-Za-z0-9_@%+=:,./-]"));
    QStringList quoted;
    for (QString word : words) {
        if (word.isEmpty() || word.contains(odd))
            word = u'\'' + word.replace(u'\'', QStringLiteral("'\\''")) + u'\'';
        quoted << word;
    }
    return quoted.join(u' ');
}

QString gameName(const QString& game)
{
    return QDir::isAbsolutePath(game) ? QFileInfo(game).completeBaseName() : game;
}

} // namespace tessera
