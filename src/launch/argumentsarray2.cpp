#include "launch/argumentsarray.h"

#include <array>
#include <variant>

namespace tessera {

namespace {

using O = LaunchOptions;

struct Value {
    QString (*of)(const O& options);
};
struct OsxRow {
    const char* option;
    std::variant<int O::*, QString O::*, PopupState O::*, Value> value;
    bool withSoundOnly = false;
};

QString oneOrZero(bool on)
{
    return on ? QStringLiteral("1") : QStringLiteral("0");
}

QString soundEnabled(const O& options)
{
    return oneOrZero(options.popup_Sound.index != 0);
}

QString fullScreen(const O& options)
{
    return oneOrZero(options.displaymodePop != 0);
}

QString biosName(const O& options)
{
    return options.biosPop.index == 0 ? QStringLiteral("default") : options.biosPop.title;
}

// clang-format off
constexpr std::array osxRows{
    OsxRow{"-Cheat", &O::checkboxCheat},
    OsxRow{"-AutoSave", &O::checkboxAutosave},
    OsxRow{"-SoundEnabled", Value{&soundEnabled}},
    OsxRow{"-SampleRate", &O::soundsampleratePop, true},
    OsxRow{"-UseSamples", &O::checkboxSoundsamples, true},
    OsxRow{"-Mouse", &O::checkboxMouse},
    OsxRow{"-Joystick", &O::checkboxJoystick},
    OsxRow{"-SkipGameInfo", &O::checkboxGameinfo},
    OsxRow{"-FullScreen", Value{&fullScreen}},
    OsxRow{"-SwitchResolutions", &O::checkboxResolution},
    OsxRow{"-KeepAspect", &O::checkboxAspect},
    OsxRow{"-SyncToRefresh", &O::checkboxWaitvsync},
    OsxRow{"-LinearFilter", &O::checkboxBilinear},
    OsxRow{"-AntialiasBeam", &O::checkboxAntialias},
    OsxRow{"-BeamWidth", &O::beemTextField},
    OsxRow{"-VectorFlicker", &O::flickerTextField},
    OsxRow{"-Bios", Value{&biosName}},
};
// clang-format on
static_assert(osxRows.size() == 17);

/// The value of a row of the MAME OS X dialect.
struct OsxValue {
    const O& options;

    QString operator()(int O::* box) const { return oneOrZero(options.*box != 0); }
    QString operator()(QString O::* field) const { return options.*field; }
    QString operator()(PopupState O::* popup) const { return (options.*popup).title; }
    QString operator()(const Value& value) const { return value.of(options); }
};

} // namespace

QStringList argumentsArray2(const LaunchOptions& options)
{
    QStringList list;
    for (const OsxRow& row : osxRows) {
        if (row.withSoundOnly && options.popup_Sound.index == 0)
            continue;
        list << QLatin1String(row.option) << std::visit(OsxValue{options}, row.value);
    }
    return list;
}

} // namespace tessera
