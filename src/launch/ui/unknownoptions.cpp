#include "launch/ui/unknownoptions.h"

#include "core/failure.h"
#include "launch/emulatorprofile.h"

#include <QAbstractButton>
#include <QLabel>
#include <QStyle>
#include <QWidget>

#include <array>

namespace tessera {

namespace {

// A control and an option that it sends. It is unknown where the emulator takes none of its options.
struct Row {
    const char* control;
    const char* option;
};

// clang-format off
constexpr std::array rows{
    Row{"devicevideoPop",        "-video"},
    Row{"displaymodePop",        "-window"},
    Row{"scalingPop",            "-prescale"},
    Row{"checkboxMaximize",      "-maximize"},
    Row{"checkboxAspect",        "-keepaspect"},
    Row{"checkboxStretch",       "-unevenstretch"},
    Row{"checkboxResolution",    "-switchres"},
    Row{"checkboxWaitvsync",     "-waitvsync"},
    Row{"checkboxMultithread",   "-multithreading"},
    Row{"displayframePop",       "-autoframeskip"},
    Row{"displayframePop",       "-frameskip"},
    Row{"displayrotation",       "-rotate"},
    Row{"displayrotation",       "-ror"},
    Row{"displayrotation",       "-rol"},
    Row{"displayflipPop",        "-flipx"},
    Row{"displayflipPop",        "-flipy"},
    Row{"checkboxBilinear",      "-filter"},
    Row{"checkboxEffect",        "-effect"},
    Row{"effectTextField",       "-effect"},
    Row{"scalemodePop",          "-scalemode"},
    Row{"checkboxArtwork",       "-artwork_crop"},
    Row{"checkboxBackdrops",     "-use_backdrops"},
    Row{"checkboxOverlays",      "-use_overlays"},
    Row{"checkboxBezels",        "-use_bezels"},
    Row{"checkboxAntialias",     "-antialias"},
    Row{"beemTextField",         "-beam"},
    Row{"flickerTextField",      "-flicker"},
    Row{"popup_Sound",           "-sound"},
    Row{"soundvolumetextField",  "-volume"},
    Row{"soundsampleratePop",    "-samplerate"},
    Row{"soundlatencytextField", "-audio_latency"},
    Row{"checkboxSoundsamples",  "-samples"},
    Row{"checkMovierecord",      "-wavwrite"},
    Row{"checkMovierecord",      "-mngwrite"},
    Row{"checkMovierecord",      "-aviwrite"},
    Row{"recordMatrix_0",        "-wavwrite"},
    Row{"wavnameTextField",      "-wavwrite"},
    Row{"recordMatrix_1",        "-mngwrite"},
    Row{"mngnameTextField",      "-mngwrite"},
    Row{"recordMatrix_2",        "-aviwrite"},
    Row{"avinameTextField",      "-aviwrite"},
    Row{"biosPop",               "-bios"},
    Row{"checkBoxReplay",        "-record"},
    Row{"checkBoxReplay",        "-playback"},
    Row{"replayMatrix_0",        "-record"},
    Row{"recordfilePop",         "-record"},
    Row{"replayMatrix_1",        "-playback"},
    Row{"textfildPlayback",      "-playback"},
    Row{"checkboxCheat",         "-cheat"},
    Row{"checkboxGameinfo",      "-skip_gameinfo"},
    Row{"checkboxAutosave",      "-autosave"},
    Row{"errorlogPop",           "-log"},
    Row{"errorlogPop",           "-verbose"},
    Row{"errorlogPop",           "-debug"},
    Row{"errorlogPop",           "-oslog"},
    Row{"checkboxMouse",         "-mouse"},
    Row{"checkboxJoystick",      "-joystick"},
    Row{"checkboxLightgun",      "-lightgun"},
    Row{"checkboxOffscreen",     "-offscreen_reload"},
    Row{"checkboxSteadykey",     "-steadykey"},
    Row{"checkboxRompath",       "-rompath"},
};
// clang-format on

// What the emulator does not take of a control's options; empty where it takes one of them.
QStringList unknownOptions(const QString& control, const EmulatorProfile* profile)
{
    QStringList unknown;
    for (const Row& row : rows) {
        const QString option = QLatin1String(row.option);
        if (control != QLatin1String(row.control))
            continue;
        if (profile == nullptr || profile->takes(option))
            return {};
        unknown << option;
    }
    return unknown;
}

void setMark(QWidget& widget, bool unknown)
{
    if (widget.property("unknown").toBool() == unknown)
        return;
    widget.setProperty("unknown", unknown);
    widget.style()->unpolish(&widget);
    widget.style()->polish(&widget);
}

// A box carries its name itself: the label may stand for the row's other boxes too.
void mark(QWidget& page, QWidget& control, const QString& why)
{
    setMark(control, !why.isEmpty());
    control.setToolTip(why);
    control.setAccessibleDescription(why);
    if (qobject_cast<QAbstractButton*>(&control) != nullptr)
        return;
    for (QLabel* label : page.findChildren<QLabel*>()) {
        if (label->buddy() != &control)
            continue;
        setMark(*label, !why.isEmpty());
        label->setToolTip(why);
    }
}

} // namespace

void markUnknownOptions(QWidget& page, const EmulatorProfile* profile)
{
    QString marked;
    for (const Row& row : rows) {
        const QString name = QLatin1String(row.control);
        auto* control = page.findChild<QWidget*>(name);
        if (control == nullptr || name == std::exchange(marked, name))
            continue;
        const QStringList unknown = unknownOptions(name, profile);
        mark(
            page, *control,
            unknown.isEmpty()
                ? QString()
                : qtTrId("option_unknown").replace(QStringLiteral("%1"), unknown.join(QStringLiteral(", "))));
    }
}

} // namespace tessera
