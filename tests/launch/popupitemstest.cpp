#include "launch/popupitems.h"

#include "support/testmain.h"

#include <span>

using namespace tessera;

namespace {

QStringList shown(std::span<const PopupItem> items)
{
    QStringList list;
    for (const PopupItem& item : items)
        list << QString::fromLatin1(item.title ? item.title : item.labelKey ? item.labelKey : "---");
    return list;
}

} // namespace

class PopupItemsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itemsKeepTheirPositions_data()
    {
        QTest::addColumn<QStringList>("items");
        QTest::addColumn<QStringList>("first");
        const auto row = [](const char* name, std::span<const PopupItem> items, const QStringList& first) {
            QTest::newRow(name) << shown(items) << first;
        };
        row("launch modes", launchModes, {"SDL MAME", "MAME OS X", "mode_application"});
        row("video drivers", videoDrivers, {"soft", "accel", "opengl", "bgfx", "none"});
        row("display modes", displayModes, {"display_window", "display_fullscreen"});
        row("prescale", prescaleFactors, {"1", "2", "3", "4", "5", "6", "7", "8"});
        row("frame skip", frameSkips,
            {"frameskip_automatic", "0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "10"});
        row("rotation", rotations, {"rotation_none", "rotation_game", "rotation_right", "rotation_left"});
        row("flip", flips, {"flip_none", "flip_leftright", "flip_upsidedown", "flip_both"});
        row("scale modes", scaleModes, {"none", "hwblit", "hwbest", "yv12", "yuy2", "yv12x2", "yuy2x2"});
        row("sound", soundOutputs, {"none", "sdl", "portaudio", "pulse"});
        row("sample rates", sampleRates, {"11025", "22050", "44100", "48000", "96000"});
        row("log", logOutputs,
            {"log_off", "---", "log_emulators", "log_file", "log_verbose", "log_debugger", "log_system"});
        row("record names", recordNames, {"recordname_short", "recordname_title", "recordname_titlejp"});
        row("BIOS", biosSets,
            {"bios_none", "euro", "us",  "japan",  "japan-s2", "unibios40", "unibios33", "unibios23", "v2",
             "v1",        "jp",   "a",   "b",      "bios0",    "bios1",     "dual",      "single",    "ver1",
             "europe",    "asia", "usa", "export", "korea",    "std",       "v201",      "onep300"});
    }

    // Settings hold positions: items may be appended, never moved.
    void itemsKeepTheirPositions()
    {
        QFETCH(QStringList, items);
        QFETCH(QStringList, first);
        QCOMPARE(items.mid(0, first.size()), first);
    }
};

TESSERA_TEST(PopupItemsTest);
#include "popupitemstest.moc"
