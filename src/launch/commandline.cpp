#include "launch/commandline.h"

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

} // namespace

QString CommandLine::leftOutLine() const
{
    if (leftOut.isEmpty())
        return QString();
    return qtTrId("launch_leftout").replace(QStringLiteral("%1"), leftOut.join(QStringLiteral(", ")));
}

CommandLine commandLine(const std::optional<EmulatorProfile>& profile, const QString& game,
                        const QStringList& built, const QStringList& own)
{
    if (!profile)
        return {QStringList{game} + built + own, {}};
    auto [arguments, leftOut] = profile->fit(built);
    const QString folder = QFileInfo(game).path();
    // A folder with a separator in its name would read as two.
    if (!QDir::isAbsolutePath(game) || folder.contains(folderSeparator))
        return {QStringList{game} + arguments + own, leftOut};
    putFolderFirst(folder, profile->romFolders(), arguments);
    return {QStringList{gameName(game)} + arguments + own, leftOut};
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
