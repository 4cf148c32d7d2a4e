#include "core/settingskeys.h"

#include "support/testmain.h"

using namespace tessera;
using namespace Qt::Literals::StringLiterals;

namespace {

// The names and values that users' settings files depend on, written out a second time on purpose.
const std::vector<InitialSetting> expected{
    {"Launchgamesusing"_L1, 0.0F},
    {"Displaymode"_L1, 0.0F},
    {"Videodriver"_L1, 2.0F},
    {"Scaling"_L1, 0.0F},
    {"Maximize"_L1, false},
    {"Keepaspect"_L1, true},
    {"Unevenstretch"_L1, true},
    {"Resolutionswitc"_L1, true},
    {"Waitvsync"_L1, false},
    {"Multithreading"_L1, false},
    {"Displayframeskip"_L1, 0.0F},
    {"Displayrotation"_L1, 1.0F},
    {"Displayflip"_L1, 0.0F},
    {"Bilinear"_L1, false},
    {"Effect"_L1, false},
    {"Effectname"_L1, "none"_L1},
    {"ScalemodeArgPop"_L1, 0.0F},
    {"ScalemodePop"_L1, 0.0F},
    {"Artwork"_L1, false},
    {"Backdrops"_L1, false},
    {"Overlays"_L1, false},
    {"Bezels"_L1, false},
    {"Antialiased"_L1, true},
    {"Displaybeam"_L1, 1.0F},
    {"Displayflicker"_L1, 0.0F},
    {"Soundoutput"_L1, 1.0F},
    {"Soundvolume"_L1, 0.0F},
    {"Soundsmplerate"_L1, 3.0F},
    {"Audiolatency"_L1, "1"_L1},
    {"Soundsmples"_L1, true},
    {"Movierecord"_L1, false},
    {"Moviematrix"_L1, 0.0F},
    {"Wavfilename"_L1, "Sound_record.wav"_L1},
    {"Mngfilename"_L1, "Movie_record.mng"_L1},
    {"Avifilename"_L1, "Movie_record.avi"_L1},
    {"Mousecontrolle"_L1, false},
    {"Joystickcontrolle"_L1, true},
    {"Lightguncontrolle"_L1, false},
    {"Offscreenreload"_L1, false},
    {"Registersimultaneous"_L1, false},
    {"Outputserror"_L1, false},
    {"Debugoptions"_L1, 0.0F},
    {"Commandoption"_L1, 0.0F},
    {"Commandexport"_L1, 0.0F},
    {"Biostype"_L1, 0.0F},
    {"Replaymove"_L1, false},
    {"Replaymatrix"_L1, 0.0F},
    {"Recordfilepop"_L1, 0.0F},
    {"Playbackfilename"_L1, ""_L1},
    {"Cheatsystem"_L1, false},
    {"Gameinfo"_L1, false},
    {"Automaticsavestate"_L1, false},
    {"Suppress_PS"_L1, false},
    {"Screenfolder"_L1, 0.0F},
    {"Rominfosite"_L1, 0.0F},
    {"VisitedURLPath"_L1, "https://www.mamedev.org/"_L1},
    {"VisitedRomPath"_L1, ""_L1},
    {"Snapdownsite"_L1, 0.0F},
    {"AspectRatio"_L1, 0.0F},
    {"TablefontName"_L1, ""_L1},
    {"FavoritefontName"_L1, ""_L1},
    {"rowHeight"_L1, 20.0F},
    {"fontSize"_L1, 13.0F},
    {"History_fontsize"_L1, 12.0F},
    {"gamelist_coloring"_L1, false},
    {"TableViewTextColor"_L1, "#ffe6e6e6"_L1},
    {"TableViewTextColor2"_L1, "#80e6e6e6"_L1},
    {"helpPopmenu"_L1, 0.0F},
    {"helpTabview"_L1, 0.0F},
    {"verifyromsButton_isgood"_L1, false},
    {"verifyromsButton_isbesta"_L1, false},
    {"verifyromsButton_iclength"_L1, false},
    {"verifyromsButton_iccsum"_L1, false},
    {"verifyromsButton_nredump"_L1, false},
    {"verifyromsButton_ngdk"_L1, false},
    {"verifyromsButton_isbad"_L1, true},
    {"verifyromsButton_notfound"_L1, false},
    {"verifyromsButton_nfsparent"_L1, false},
    {"verifyromsButton_nfngd"_L1, false},
    {"verifyromsButton_nfbo"_L1, false},
    {"verifyromsButton_other"_L1, false},
    {"old_favoritesfile"_L1, "%1/Library/Preferences/jp.Plover.Tessera_Favorites.xml"_L1},
    {"script_format"_L1, 0.0F},
    {"script_emu"_L1, 0.0F},
    {"script_filename"_L1, 0.0F},
    {"script_option"_L1, 0.0F},
};

} // namespace

class SettingsKeysTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initialValuesStandInTheirOrder_data()
    {
        QTest::addColumn<qsizetype>("position");
        for (qsizetype i = 0; i < qsizetype(expected.size()); ++i)
            QTest::newRow(expected[size_t(i)].name.data()) << i;
    }

    void initialValuesStandInTheirOrder()
    {
        QFETCH(qsizetype, position);
        QCOMPARE(initialSettings.size(), expected.size());
        const InitialSetting& row = initialSettings[size_t(position)];
        QCOMPARE(row.name, expected[size_t(position)].name);
        QVERIFY(row.value == expected[size_t(position)].value);
    }
};

TESSERA_TEST(SettingsKeysTest);
#include "settingskeystest.moc"
