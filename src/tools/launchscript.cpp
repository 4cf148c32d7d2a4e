#include "tools/launchscript.h"

#include "core/atomicfile.h"
#include "launch/osxapplication.h"

#include <QFile>
#include <QFileInfo>

#include <string_view>

namespace tessera {

namespace {

constexpr int count = 3; // of formats, and of emulators
using Templates = std::array<std::array<const char*, count>, count>;

// clang-format off
// By emulator and format; each %@ is the next value. Deliberate: paths of the first row stand without quotes.
constexpr Templates templates{{
    {"cd %@\n./%@ %@",         "#!/bin/sh\n\ncd %@\n./%@ %@",         "do shell script \"cd %@;./%@ %@"},
    {"\"%@\" -Game %@",        "#!/bin/sh\n\n\"%@\" -Game %@",        "do shell script \"\\\"%@\\\" -Game %@"},
    {"open -a \"%@\" \"%@\"",  "#!/bin/sh\n\nopen -a \"%@\" \"%@\"",  "do shell script \"open -a \\\"%@\\\" \\\"%@\\\""},
}};
// clang-format on

QString filled(std::string_view form, const QStringList& values)
{
    QString text;
    for (const QString& value : values) {
        const std::size_t place = form.find("%@");
        text += QLatin1StringView(QByteArrayView(form.substr(0, place))) + value;
        form.remove_prefix(place + 2);
    }
    return text + QLatin1StringView(QByteArrayView(form));
}

QStringList valuesOf(const ScriptRequest& request)
{
    const QFileInfo emulator(request.emulatorPath);
    switch (request.emulator) {
    case ScriptEmulator::CommandLine:
        return {emulator.path(), emulator.fileName(), request.game};
    case ScriptEmulator::MameOsx:
        return {bundleExecutable(request.emulatorPath), request.game};
    case ScriptEmulator::OtherApplication:
        return {request.emulatorPath,
                request.home + QStringLiteral("/Documents/MacMAME User Data/ROMs/") + request.game
                    + QStringLiteral(".zip")};
    case ScriptEmulator::None:
        break;
    }
    return {};
}

bool isChoice(int position)
{
    return position >= 0 && position < count;
}

} // namespace

ScriptFormat scriptFormatAt(int position)
{
    return isChoice(position) ? static_cast<ScriptFormat>(position) : ScriptFormat::None;
}

ScriptEmulator scriptEmulatorAt(int position)
{
    return isChoice(position) ? static_cast<ScriptEmulator>(position) : ScriptEmulator::None;
}

QString scriptText(const ScriptRequest& request)
{
    if (request.emulator == ScriptEmulator::None || request.format == ScriptFormat::None)
        return {};
    QString text = filled(
        templates[static_cast<std::size_t>(request.emulator)][static_cast<std::size_t>(request.format)],
        valuesOf(request));
    if (!request.options.isEmpty() && request.emulator != ScriptEmulator::OtherApplication) {
        QString options = QLatin1Char(' ') + request.options.join(QLatin1Char(' '));
        // Within the string that the script hands to the shell.
        if (request.format == ScriptFormat::AppleScript)
            options.replace(QLatin1Char('"'), QStringLiteral("\\\""));
        text += options;
    }
    if (request.format == ScriptFormat::AppleScript)
        text += QLatin1Char('"');
    return text;
}

QString scriptFileName(int choice, ScriptFormat format, const ScriptTitles& titles)
{
    const std::array names{titles.name, titles.title, titles.titlejp, QString()};
    QString name;
    if (choice >= 0 && choice <= 6)
        name = (choice > 3 ? titles.emulator + QLatin1Char('_') : QString())
            + names[static_cast<std::size_t>(choice) % names.size()];
    // A title like "Puck Man / Pac-Man" would read as a folder and a file; each slash is shown as a hyphen.
    name.replace(QLatin1Char('/'), QLatin1Char('-'));
    if (format != ScriptFormat::None)
        name += QLatin1Char('.') + QLatin1String(scriptExtensions[static_cast<std::size_t>(format)]);
    return name;
}

std::expected<void, Failure> saveScript(const QString& path, ScriptFormat format, const QString& text)
{
    if (const auto written = writeAtomically(path, text.toUtf8()); !written)
        return written;
    // A shell script stays as it was written: deliberate.
    if (format != ScriptFormat::CommandFile)
        return {};
    using P = QFileDevice;
    QFile file(path);
    if (!file.setPermissions(P::ReadOwner | P::WriteOwner | P::ExeOwner | P::ReadGroup | P::ExeGroup
                             | P::ReadOther | P::ExeOther))
        return std::unexpected(Failure{"failure_write", {path, file.errorString()}});
    return {};
}

} // namespace tessera
