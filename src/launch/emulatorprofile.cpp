#include "launch/emulatorprofile.h"

#include "launch/argumentsarray.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QStringTokenizer>

#include <algorithm>
#include <array>

namespace tessera {

namespace {

// Names are padded to this many columns. A name as long as that, or longer, runs into its description.
constexpr qsizetype nameColumn = 20;

struct Renamed {
    const char* option;
    const char* now;
};
constexpr std::array renamedOptions{Renamed{"-beam", "-beam_width_min"}};

// As every program before 0.175 does itself.
QString withoutQuotes(const QString& value)
{
    const QLatin1Char quote('"');
    if (value.size() >= 2 && value.startsWith(quote) && value.endsWith(quote))
        return value.mid(1, value.size() - 2);
    return value;
}

// Absolute paths of "$HOME/roms;more".
QStringList folderList(const QString& written, const QString& home)
{
    static const QRegularExpression variable(QStringLiteral("\\$(?:\\{(\\w+)\\}|(\\w+))"));
    QStringList folders;
    for (const QString& each : written.split(u';', Qt::SkipEmptyParts)) {
        QString folder;
        qsizetype end = 0;
        for (const auto& match : variable.globalMatch(each)) {
            const QString name = match.captured(1).isEmpty() ? match.captured(2) : match.captured(1);
            folder += QStringView(each).mid(end, match.capturedStart() - end);
            folder += QFile::decodeName(qgetenv(name.toLatin1().constData()));
            end = match.capturedEnd();
        }
        folder += QStringView(each).mid(end);
        folders << QDir::cleanPath(QDir(home).absoluteFilePath(folder));
    }
    return folders;
}

} // namespace

std::optional<EmulatorProfile> EmulatorProfile::fromUsage(QByteArrayView usage)
{
    EmulatorProfile profile;
    const QString text = QString::fromUtf8(usage);
    for (QStringView line : QStringTokenizer(text, QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        if (line.startsWith(QLatin1Char('-')))
            profile.readOption(line);
        else
            profile.readSetting(line);
    }
    if (!profile.listsName(u"rompath"))
        return std::nullopt;
    return profile;
}

// "-rompath             path to ROM sets"
void EmulatorProfile::readOption(QStringView line)
{
    const qsizetype blank = line.indexOf(QLatin1Char(' '));
    const QStringView name = line.first(blank < 0 ? line.size() : blank).mid(1).trimmed();
    if (name.size() >= nameColumn) {
        m_overlong << name.toString();
    } else if (!name.isEmpty()) {
        m_names.insert(name.toString());
        m_options << Option{u'-' + name.toString(), line.mid(1 + name.size()).trimmed().toString()};
    }
    // Until 0.153 sound was a switch ("enable sound output"); since then it names an output.
    if (name == QLatin1String("sound"))
        m_soundTakesValue = !line.mid(1 + name.size()).trimmed().startsWith(QLatin1String("enable"));
}

// "rompath                   /roms;/more", in quotes where there is a blank in it
void EmulatorProfile::readSetting(QStringView line)
{
    const auto read = [line](QLatin1StringView name, QString& value) {
        if (line.startsWith(name))
            value = withoutQuotes(line.mid(name.size()).trimmed().toString());
    };
    read(QLatin1StringView("rompath "), m_romFolders);
    read(QLatin1StringView("inipath "), m_iniFolders);
    read(QLatin1StringView("snapshot_directory "), m_snapshotFolder);
}

bool EmulatorProfile::listsName(QStringView name) const
{
    if (name.size() < nameColumn)
        return m_names.contains(name.toString());
    return std::ranges::any_of(m_overlong, [&](const QString& word) { return word.startsWith(name); });
}

bool EmulatorProfile::lists(QStringView option) const
{
    if (!option.startsWith(QLatin1Char('-')))
        return false;
    const QStringView name = option.mid(1);
    return listsName(name) || (name.startsWith(QLatin1String("no")) && listsName(name.mid(2)));
}

QString EmulatorProfile::nameNow(const QString& option) const
{
    for (const Renamed& row : renamedOptions) {
        const QString now = QString::fromLatin1(row.now);
        if (option == QLatin1String(row.option) && !lists(option) && lists(now))
            return now;
    }
    return option;
}

QStringList EmulatorProfile::valuesOf(const QString& option) const
{
    const auto found = std::ranges::find(m_options, option, &Option::name);
    if (found == m_options.end())
        return {};
    static const QRegularExpression aside(QStringLiteral("\\([^)]*\\)"));
    static const QRegularExpression between(QStringLiteral(",\\s*(?:or\\s+)?|\\s+or\\s+|\\s+"));
    const qsizetype colon = found->description.indexOf(u':');
    if (colon < 0)
        return {};
    return found->description.mid(colon + 1).remove(aside).split(between, Qt::SkipEmptyParts);
}

QStringList EmulatorProfile::romFolderList(const QString& home) const
{
    return folderList(m_romFolders, home);
}

QStringList EmulatorProfile::snapshotFolderList(const QString& home) const
{
    return folderList(m_snapshotFolder, home);
}

QStringList EmulatorProfile::settingsFiles(const QString& home) const
{
    QStringList files;
    for (const QString& folder : folderList(m_iniFolders, home))
        files << folder + QStringLiteral("/mame.ini");
    return files;
}

EmulatorProfile::Fitted EmulatorProfile::fit(const QStringList& built, Quotes quotes) const
{
    Fitted fitted;
    for (qsizetype i = 0; i < built.size(); ++i) {
        const QString& option = built[i];
        if (takesValue(option) && i + 1 < built.size())
            fitValue(option, built[++i], quotes, fitted);
        else if (lists(option))
            fitted.arguments << option;
        else
            fitted.leftOut << option;
    }
    return fitted;
}

void EmulatorProfile::fitValue(const QString& built, const QString& value, Quotes quotes,
                               Fitted& fitted) const
{
    const QString option = nameNow(built);
    const QString bare = withoutQuotes(value);
    // An empty argument ends old programs with an error, and every program takes its own default without it.
    if (!lists(option) || bare.isEmpty())
        fitted.leftOut << option + QLatin1Char(' ') + (value.isEmpty() ? QStringLiteral("\"\"") : value);
    else if (option == QLatin1String("-sound") && !m_soundTakesValue)
        fitted.arguments << (bare == QLatin1String("none") ? QStringLiteral("-nosound") : option);
    else
        fitted.arguments << option << (quotes == Quotes::Kept ? value : bare);
}

} // namespace tessera
