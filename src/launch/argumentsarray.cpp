#include "launch/argumentsarray.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <variant>

namespace tessera {

namespace {

using O = LaunchOptions;

QString quoted(const QString& text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

// The kinds of row. Options are parted by blanks where a row appends several.
struct Title {
    PopupState O::* popup;
    const char* option;
};
struct Text {
    QString O::* field;
    const char* option;
};
struct OnOff {
    int O::* box;
    const char* on;
    const char* off;
};
/// Like OnOff, but a mixed state appends nothing.
struct ExactOnOff {
    int O::* box;
    const char* on;
    const char* off;
};
/// What each position appends; nothing for a position that is not listed.
struct Positions {
    int O::* popup;
    std::array<const char*, 12> options;
};
struct Rule {
    void (*append)(const O& options, QStringList& list);
};

using Row = std::variant<Title, Text, OnOff, ExactOnOff, Positions, Rule>;

void effect(const O& options, QStringList& list)
{
    if (options.checkboxEffect)
        list << QStringLiteral("-effect") << quoted(options.effectTextField);
}

void movie(const O& options, QStringList& list)
{
    if (!options.checkMovierecord)
        return;
    if (options.recordMatrix == 0)
        list << QStringLiteral("-wavwrite") << options.wavnameTextField;
    else if (options.recordMatrix == 1)
        list << QStringLiteral("-mngwrite") << options.mngnameTextField;
    else if (options.recordMatrix == 2)
        list << QStringLiteral("-aviwrite") << options.avinameTextField;
}

void bios(const O& options, QStringList& list)
{
    // Deliberate: no BIOS is sent as an empty value in quotes, not left out.
    list << QStringLiteral("-bios")
         << (options.biosPop.index == 0 ? QStringLiteral("\"\"") : options.biosPop.title);
}

// Deliberate: the short name goes bare, the titles in quotes.
QStringList recordFile(const O& options)
{
    const QString format = QStringLiteral("%1.inp");
    switch (options.recordfilePop) {
    case 0:
        return {format.arg(options.selected.name)};
    case 1:
        return {quoted(format.arg(options.selected.title))};
    case 2:
        return {quoted(format.arg(options.selected.titlejp))};
    default:
        return {};
    }
}

void replay(const O& options, QStringList& list)
{
    if (!options.checkBoxReplay)
        return;
    if (options.replayMatrix == 1)
        list << QStringLiteral("-playback") << quoted(options.textfildPlayback);
    else if (options.replayMatrix == 0)
        list << QStringLiteral("-record") << recordFile(options);
}

void lightgun(const O& options, QStringList& list)
{
    if (!options.checkboxLightgun)
        list << QStringLiteral("-nolightgun");
    else
        list << QStringLiteral("-lightgun")
             << (options.checkboxOffscreen ? QStringLiteral("-offscreen_reload")
                                           : QStringLiteral("-nooffscreen_reload"));
}

void romPath(const O& options, QStringList& list)
{
    if (options.checkboxRompath && options.romsFolderFound)
        list << QStringLiteral("-rompath") << quoted(options.romsTextField);
}

// The options of the command-line emulator, in order of emission.
// clang-format off
constexpr std::array commandLineRows{
    Row(Title{&O::devicevideoPop, "-video"}),
    Row(Positions{&O::displaymodePop, {"-window", "-nowindow"}}),
    Row(Title{&O::scalingPop, "-prescale"}),
    Row(ExactOnOff{&O::checkboxMaximize, "-maximize", "-nomaximize"}),
    Row(OnOff{&O::checkboxAspect, "-keepaspect", "-nokeepaspect"}),
    Row(OnOff{&O::checkboxStretch, "-unevenstretch", "-nounevenstretch"}),
    Row(OnOff{&O::checkboxResolution, "-switchres", "-noswitchres"}),
    Row(OnOff{&O::checkboxWaitvsync, "-waitvsync", "-nowaitvsync"}),
    Row(OnOff{&O::checkboxMultithread, "-multithreading", "-nomultithreading"}),
    Row(Positions{&O::displayframePop, {
        "-autoframeskip",
        "-noautoframeskip -frameskip 0",
        "-noautoframeskip -frameskip 1",
        "-noautoframeskip -frameskip 2",
        "-noautoframeskip -frameskip 3",
        "-noautoframeskip -frameskip 4",
        "-noautoframeskip -frameskip 5",
        "-noautoframeskip -frameskip 6",
        "-noautoframeskip -frameskip 7",
        "-noautoframeskip -frameskip 8",
        "-noautoframeskip -frameskip 9",
        "-noautoframeskip -frameskip 10"}}),
    Row(Positions{&O::displayrotation, {
        "-norotate -noror -norol",
        "-rotate -noror -norol",
        "-rotate -ror -norol",
        "-rotate -noror -rol"}}),
    Row(Positions{&O::displayflipPop, {
        "-noflipx -noflipy",
        "-flipx -noflipy",
        "-noflipx -flipy",
        "-flipx -flipy"}}),
    Row(OnOff{&O::checkboxBilinear, "-filter", "-nofilter"}),
    Row(Rule{&effect}),
    Row(Title{&O::scalemodePop, "-scalemode"}),
    Row(OnOff{&O::checkboxArtwork, "-artwork_crop", "-noartwork_crop"}),
    Row(OnOff{&O::checkboxBackdrops, "-use_backdrops", "-nouse_backdrops"}),
    Row(OnOff{&O::checkboxOverlays, "-use_overlays", "-nouse_overlays"}),
    Row(OnOff{&O::checkboxBezels, "-use_bezels", "-nouse_bezels"}),
    Row(OnOff{&O::checkboxAntialias, "-antialias", "-noantialias"}),
    Row(Text{&O::beemTextField, "-beam"}),
    Row(Text{&O::flickerTextField, "-flicker"}),
    Row(Title{&O::popup_Sound, "-sound"}),
    Row(Text{&O::soundvolumetextField, "-volume"}),
    Row(Title{&O::soundsampleratePop, "-samplerate"}),
    Row(Text{&O::soundlatencytextField, "-audio_latency"}),
    Row(OnOff{&O::checkboxSoundsamples, "-samples", "-nosamples"}),
    Row(Rule{&movie}),
    Row(Rule{&bios}),
    Row(Rule{&replay}),
    Row(OnOff{&O::checkboxCheat, "-cheat", "-nocheat"}),
    Row(OnOff{&O::checkboxGameinfo, "-skip_gameinfo", "-noskip_gameinfo"}),
    Row(OnOff{&O::checkboxAutosave, "-autosave", "-noautosave"}),
    // Deliberate: positions 1 and 2 append nothing at all.
    Row(Positions{&O::errorlogPop, {
        "-nolog -noverbose -nodebug -nooslog",
        nullptr,
        nullptr,
        "-log -noverbose -nodebug -nooslog",
        "-nolog -verbose -nodebug -nooslog",
        "-nolog -noverbose -debug -nooslog",
        "-nolog -noverbose -nodebug -oslog"}}),
    Row(OnOff{&O::checkboxMouse, "-mouse", "-nomouse"}),
    Row(OnOff{&O::checkboxJoystick, "-joystick", "-nojoystick"}),
    Row(Rule{&lightgun}),
    Row(OnOff{&O::checkboxSteadykey, "-steadykey", "-nosteadykey"}),
    Row(Rule{&romPath}),
};
static_assert(commandLineRows.size() == 39);

constexpr std::array<std::string_view, 18> valuedOptions{
    "-video", "-prescale", "-frameskip", "-effect", "-scalemode", "-beam", "-flicker", "-sound", "-volume",
    "-samplerate", "-audio_latency", "-wavwrite", "-mngwrite", "-aviwrite", "-bios", "-playback", "-record", "-rompath"};
// clang-format on

/// Appends what a row's kind says.
struct Appender {
    const O& options;
    QStringList& list;

    void operator()(const Title& row) const
    {
        list << QLatin1String(row.option) << (options.*row.popup).title;
    }
    void operator()(const Text& row) const { list << QLatin1String(row.option) << options.*row.field; }
    void operator()(const OnOff& row) const { list << QLatin1String(options.*row.box ? row.on : row.off); }
    void operator()(const ExactOnOff& row) const
    {
        if (options.*row.box == 1)
            list << QLatin1String(row.on);
        else if (options.*row.box == 0)
            list << QLatin1String(row.off);
    }
    void operator()(const Positions& row) const
    {
        const int position = options.*row.popup;
        const bool listed = position >= 0 && position < static_cast<int>(row.options.size());
        if (const char* text = listed ? row.options[static_cast<std::size_t>(position)] : nullptr)
            list << QString::fromLatin1(text).split(QLatin1Char(' '));
    }
    void operator()(const Rule& row) const { row.append(options, list); }
};

} // namespace

QStringList argumentsArray(const LaunchOptions& options)
{
    QStringList list;
    for (const Row& row : commandLineRows)
        std::visit(Appender{options, list}, row);
    return list;
}

bool takesValue(QStringView option)
{
    return std::ranges::any_of(valuedOptions, [&](std::string_view valued) {
        return option == QLatin1String(valued.data(), static_cast<qsizetype>(valued.size()));
    });
}

} // namespace tessera
