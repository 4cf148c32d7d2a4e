#include "launch/argumentsarray.h"

#include "launch/storedoptions.h"
#include "platform/defaultscontroller.h"
#include "support/testmain.h"

#include <QTemporaryDir>

using namespace tessera;

namespace {

using O = LaunchOptions;

// A change to the options at their initial values, and what one row then appends.
struct Case {
    const char* name;
    std::size_t row; // counted from 1
    void (*change)(O& options);
    QStringList appended;
};

LaunchOptions initialOptions()
{
    QTemporaryDir folder;
    UserDefaults settings(folder.filePath(QStringLiteral("Tessera.ini")));
    DefaultsController defaults(settings);
    defaults.setInitialValues(QStringLiteral("Sans"), QStringLiteral("/home/me"));
    return storedOptions(defaults, {QStringLiteral("foo"), QStringLiteral("Foo"), QStringLiteral("フー")});
}

// What each row appends when every setting has its initial value.
const QList<QStringList>& initialRows()
{
    static const QList<QStringList> rows{
        {"-video", "opengl"},
        {"-window"},
        {"-prescale", "1"},
        {"-nomaximize"},
        {"-keepaspect"},
        {"-unevenstretch"},
        {"-switchres"},
        {"-nowaitvsync"},
        {"-nomultithreading"},
        {"-autoframeskip"},
        {"-rotate", "-noror", "-norol"},
        {"-noflipx", "-noflipy"},
        {"-nofilter"},
        {},
        {"-scalemode", "none"},
        {"-noartwork_crop"},
        {"-nouse_backdrops"},
        {"-nouse_overlays"},
        {"-nouse_bezels"},
        {"-antialias"},
        {"-beam", "1"},
        {"-flicker", "0"},
        {"-sound", "sdl"},
        {"-volume", "0"},
        {"-samplerate", "48000"},
        {"-audio_latency", "1"},
        {"-samples"},
        {},
        {"-bios", "\"\""},
        {},
        {"-nocheat"},
        {"-noskip_gameinfo"},
        {"-noautosave"},
        {"-nolog", "-noverbose", "-nodebug", "-nooslog"},
        {"-nomouse"},
        {"-joystick"},
        {"-nolightgun"},
        {"-nosteadykey"},
        {},
    };
    return rows;
}

const std::vector<Case>& cases()
{
    // clang-format off
    static const std::vector<Case> table{
        {"1 title", 1, [](O& o) { o.devicevideoPop = {0, "soft"}; }, {"-video", "soft"}},
        {"1 nothing selected", 1, [](O& o) { o.devicevideoPop = {}; }, {"-video", ""}},
        {"2 full screen", 2, [](O& o) { o.displaymodePop = 1; }, {"-nowindow"}},
        {"2 other position", 2, [](O& o) { o.displaymodePop = 2; }, {}},
        {"2 nothing selected", 2, [](O& o) { o.displaymodePop = -1; }, {}},
        {"3 title", 3, [](O& o) { o.scalingPop = {7, "8"}; }, {"-prescale", "8"}},
        {"4 on", 4, [](O& o) { o.checkboxMaximize = 1; }, {"-maximize"}},
        {"4 mixed", 4, [](O& o) { o.checkboxMaximize = -1; }, {}},
        {"5 off", 5, [](O& o) { o.checkboxAspect = 0; }, {"-nokeepaspect"}},
        {"5 mixed", 5, [](O& o) { o.checkboxAspect = -1; }, {"-keepaspect"}},
        {"6 off", 6, [](O& o) { o.checkboxStretch = 0; }, {"-nounevenstretch"}},
        {"7 off", 7, [](O& o) { o.checkboxResolution = 0; }, {"-noswitchres"}},
        {"8 on", 8, [](O& o) { o.checkboxWaitvsync = 1; }, {"-waitvsync"}},
        {"9 on", 9, [](O& o) { o.checkboxMultithread = 1; }, {"-multithreading"}},
        {"10 position 1", 10, [](O& o) { o.displayframePop = 1; }, {"-noautoframeskip", "-frameskip", "0"}},
        {"10 position 2", 10, [](O& o) { o.displayframePop = 2; }, {"-noautoframeskip", "-frameskip", "1"}},
        {"10 position 3", 10, [](O& o) { o.displayframePop = 3; }, {"-noautoframeskip", "-frameskip", "2"}},
        {"10 position 4", 10, [](O& o) { o.displayframePop = 4; }, {"-noautoframeskip", "-frameskip", "3"}},
        {"10 position 5", 10, [](O& o) { o.displayframePop = 5; }, {"-noautoframeskip", "-frameskip", "4"}},
        {"10 position 6", 10, [](O& o) { o.displayframePop = 6; }, {"-noautoframeskip", "-frameskip", "5"}},
        {"10 position 7", 10, [](O& o) { o.displayframePop = 7; }, {"-noautoframeskip", "-frameskip", "6"}},
        {"10 position 8", 10, [](O& o) { o.displayframePop = 8; }, {"-noautoframeskip", "-frameskip", "7"}},
        {"10 position 9", 10, [](O& o) { o.displayframePop = 9; }, {"-noautoframeskip", "-frameskip", "8"}},
        {"10 position 10", 10, [](O& o) { o.displayframePop = 10; }, {"-noautoframeskip", "-frameskip", "9"}},
        {"10 position 11", 10, [](O& o) { o.displayframePop = 11; }, {"-noautoframeskip", "-frameskip", "10"}},
        {"10 position 12", 10, [](O& o) { o.displayframePop = 12; }, {}},
        {"11 position 0", 11, [](O& o) { o.displayrotation = 0; }, {"-norotate", "-noror", "-norol"}},
        {"11 position 2", 11, [](O& o) { o.displayrotation = 2; }, {"-rotate", "-ror", "-norol"}},
        {"11 position 3", 11, [](O& o) { o.displayrotation = 3; }, {"-rotate", "-noror", "-rol"}},
        {"10 nothing selected", 10, [](O& o) { o.displayframePop = -1; }, {}},
        {"11 position 4", 11, [](O& o) { o.displayrotation = 4; }, {}},
        {"12 position 1", 12, [](O& o) { o.displayflipPop = 1; }, {"-flipx", "-noflipy"}},
        {"12 position 2", 12, [](O& o) { o.displayflipPop = 2; }, {"-noflipx", "-flipy"}},
        {"12 position 3", 12, [](O& o) { o.displayflipPop = 3; }, {"-flipx", "-flipy"}},
        {"12 position 4", 12, [](O& o) { o.displayflipPop = 4; }, {}},
        {"13 on", 13, [](O& o) { o.checkboxBilinear = 1; }, {"-filter"}},
        {"14 on", 14, [](O& o) { o.checkboxEffect = 1; o.effectTextField = "scan lines"; }, {"-effect", "\"scan lines\""}},
        {"14 mixed", 14, [](O& o) { o.checkboxEffect = -1; }, {"-effect", "\"none\""}},
        {"15 title", 15, [](O& o) { o.scalemodePop = {3, "yv12"}; }, {"-scalemode", "yv12"}},
        {"16 on", 16, [](O& o) { o.checkboxArtwork = 1; }, {"-artwork_crop"}},
        {"17 on", 17, [](O& o) { o.checkboxBackdrops = 1; }, {"-use_backdrops"}},
        {"18 on", 18, [](O& o) { o.checkboxOverlays = 1; }, {"-use_overlays"}},
        {"19 on", 19, [](O& o) { o.checkboxBezels = 1; }, {"-use_bezels"}},
        {"20 off", 20, [](O& o) { o.checkboxAntialias = 0; }, {"-noantialias"}},
        {"21 text", 21, [](O& o) { o.beemTextField = "1.5"; }, {"-beam", "1.5"}},
        {"21 empty", 21, [](O& o) { o.beemTextField.clear(); }, {"-beam", ""}},
        {"22 text", 22, [](O& o) { o.flickerTextField = "20"; }, {"-flicker", "20"}},
        {"23 title", 23, [](O& o) { o.popup_Sound = {0, "none"}; }, {"-sound", "none"}},
        {"24 text", 24, [](O& o) { o.soundvolumetextField = "-12"; }, {"-volume", "-12"}},
        {"25 title", 25, [](O& o) { o.soundsampleratePop = {0, "11025"}; }, {"-samplerate", "11025"}},
        {"26 text", 26, [](O& o) { o.soundlatencytextField = "5"; }, {"-audio_latency", "5"}},
        {"27 off", 27, [](O& o) { o.checkboxSoundsamples = 0; }, {"-nosamples"}},
        {"28 row 0", 28, [](O& o) { o.checkMovierecord = 1; o.recordMatrix = 0; }, {"-wavwrite", "Sound_record.wav"}},
        {"28 row 1", 28, [](O& o) { o.checkMovierecord = 1; o.recordMatrix = 1; }, {"-mngwrite", "Movie_record.mng"}},
        {"28 row 2", 28, [](O& o) { o.checkMovierecord = 1; o.recordMatrix = 2; }, {"-aviwrite", "Movie_record.avi"}},
        {"28 other row", 28, [](O& o) { o.checkMovierecord = 1; o.recordMatrix = 3; }, {}},
        {"28 off", 28, [](O& o) { o.checkMovierecord = 0; o.recordMatrix = 2; }, {}},
        {"29 title", 29, [](O& o) { o.biosPop = {4, "euro"}; }, {"-bios", "euro"}},
        {"30 playback", 30, [](O& o) { o.checkBoxReplay = 1; o.replayMatrix = 1; o.textfildPlayback = "g.inp"; }, {"-playback", "\"g.inp\""}},
        {"30 record by short name", 30, [](O& o) { o.checkBoxReplay = 1; o.replayMatrix = 0; o.recordfilePop = 0; }, {"-record", "foo.inp"}},
        {"30 record by title", 30, [](O& o) { o.checkBoxReplay = 1; o.replayMatrix = 0; o.recordfilePop = 1; }, {"-record", "\"Foo.inp\""}},
        {"30 record by Japanese title", 30, [](O& o) { o.checkBoxReplay = 1; o.replayMatrix = 0; o.recordfilePop = 2; }, {"-record", QString::fromUtf8("\"フー.inp\"")}},
        {"30 other row", 30, [](O& o) { o.checkBoxReplay = 1; o.replayMatrix = 2; }, {}},
        {"30 off", 30, [](O& o) { o.checkBoxReplay = 0; o.replayMatrix = 1; }, {}},
        {"31 on", 31, [](O& o) { o.checkboxCheat = 1; }, {"-cheat"}},
        {"32 on", 32, [](O& o) { o.checkboxGameinfo = 1; }, {"-skip_gameinfo"}},
        {"33 on", 33, [](O& o) { o.checkboxAutosave = 1; }, {"-autosave"}},
        {"34 position 1", 34, [](O& o) { o.errorlogPop = 1; }, {}},
        {"34 position 2", 34, [](O& o) { o.errorlogPop = 2; }, {}},
        {"34 position 3", 34, [](O& o) { o.errorlogPop = 3; }, {"-log", "-noverbose", "-nodebug", "-nooslog"}},
        {"34 position 4", 34, [](O& o) { o.errorlogPop = 4; }, {"-nolog", "-verbose", "-nodebug", "-nooslog"}},
        {"34 position 5", 34, [](O& o) { o.errorlogPop = 5; }, {"-nolog", "-noverbose", "-debug", "-nooslog"}},
        {"34 position 6", 34, [](O& o) { o.errorlogPop = 6; }, {"-nolog", "-noverbose", "-nodebug", "-oslog"}},
        {"34 position 7", 34, [](O& o) { o.errorlogPop = 7; }, {}},
        {"35 on", 35, [](O& o) { o.checkboxMouse = 1; }, {"-mouse"}},
        {"36 off", 36, [](O& o) { o.checkboxJoystick = 0; }, {"-nojoystick"}},
        {"37 on", 37, [](O& o) { o.checkboxLightgun = 1; }, {"-lightgun", "-nooffscreen_reload"}},
        {"37 on with reload", 37, [](O& o) { o.checkboxLightgun = 1; o.checkboxOffscreen = 1; }, {"-lightgun", "-offscreen_reload"}},
        {"37 off with reload", 37, [](O& o) { o.checkboxLightgun = 0; o.checkboxOffscreen = 1; }, {"-nolightgun"}},
        {"38 on", 38, [](O& o) { o.checkboxSteadykey = 1; }, {"-steadykey"}},
        {"39 on", 39, [](O& o) { o.checkboxRompath = 1; o.romsTextField = "/my roms"; o.romsFolderFound = true; }, {"-rompath", "\"/my roms\""}},
        {"39 on, folder missing", 39, [](O& o) { o.checkboxRompath = 1; o.romsTextField = "/my roms"; }, {}},
        {"39 off", 39, [](O& o) { o.romsTextField = "/my roms"; o.romsFolderFound = true; }, {}},
    };
    // clang-format on
    return table;
}

QStringList joined(const QList<QStringList>& rows)
{
    QStringList list;
    for (const QStringList& row : rows)
        list << row;
    return list;
}

// The other dialect: the whole list, with values of some options replaced.
QStringList osxList(const QMap<QString, QString>& changed = {}, const QStringList& withoutOptions = {})
{
    QStringList list{"-Cheat",
                     "0",
                     "-AutoSave",
                     "0",
                     "-SoundEnabled",
                     "1",
                     "-SampleRate",
                     "48000",
                     "-UseSamples",
                     "1",
                     "-Mouse",
                     "0",
                     "-Joystick",
                     "1",
                     "-SkipGameInfo",
                     "0",
                     "-FullScreen",
                     "0",
                     "-SwitchResolutions",
                     "1",
                     "-KeepAspect",
                     "1",
                     "-SyncToRefresh",
                     "0",
                     "-LinearFilter",
                     "0",
                     "-AntialiasBeam",
                     "1",
                     "-BeamWidth",
                     "1",
                     "-VectorFlicker",
                     "0",
                     "-Bios",
                     "default"};
    for (auto i = changed.begin(); i != changed.end(); ++i)
        list[list.indexOf(i.key()) + 1] = i.value();
    for (const QString& option : withoutOptions)
        list.remove(list.indexOf(option), 2);
    return list;
}

struct OsxCase {
    const char* name;
    void (*change)(O& options);
    QStringList expected;
};

const std::vector<OsxCase>& osxCases()
{
    // clang-format off
    static const std::vector<OsxCase> table{
        {"initial values", [](O&) {}, osxList()},
        {"1 on", [](O& o) { o.checkboxCheat = 1; }, osxList({{"-Cheat", "1"}})},
        {"1 mixed", [](O& o) { o.checkboxCheat = -1; }, osxList({{"-Cheat", "1"}})},
        {"2 on", [](O& o) { o.checkboxAutosave = 1; }, osxList({{"-AutoSave", "1"}})},
        {"3 silent", [](O& o) { o.popup_Sound = {0, "none"}; }, osxList({{"-SoundEnabled", "0"}}, {"-SampleRate", "-UseSamples"})},
        {"3 other position", [](O& o) { o.popup_Sound = {3, "pulse"}; }, osxList()},
        {"4 title", [](O& o) { o.soundsampleratePop = {1, "22050"}; }, osxList({{"-SampleRate", "22050"}})},
        {"5 off", [](O& o) { o.checkboxSoundsamples = 0; }, osxList({{"-UseSamples", "0"}})},
        {"6 on", [](O& o) { o.checkboxMouse = 1; }, osxList({{"-Mouse", "1"}})},
        {"7 off", [](O& o) { o.checkboxJoystick = 0; }, osxList({{"-Joystick", "0"}})},
        {"8 on", [](O& o) { o.checkboxGameinfo = 1; }, osxList({{"-SkipGameInfo", "1"}})},
        {"9 full screen", [](O& o) { o.displaymodePop = 1; }, osxList({{"-FullScreen", "1"}})},
        {"9 other position", [](O& o) { o.displaymodePop = 5; }, osxList({{"-FullScreen", "1"}})},
        {"10 off", [](O& o) { o.checkboxResolution = 0; }, osxList({{"-SwitchResolutions", "0"}})},
        {"11 off", [](O& o) { o.checkboxAspect = 0; }, osxList({{"-KeepAspect", "0"}})},
        {"12 on", [](O& o) { o.checkboxWaitvsync = 1; }, osxList({{"-SyncToRefresh", "1"}})},
        {"13 on", [](O& o) { o.checkboxBilinear = 1; }, osxList({{"-LinearFilter", "1"}})},
        {"14 off", [](O& o) { o.checkboxAntialias = 0; }, osxList({{"-AntialiasBeam", "0"}})},
        {"15 text", [](O& o) { o.beemTextField = "2"; }, osxList({{"-BeamWidth", "2"}})},
        {"16 text", [](O& o) { o.flickerTextField = "3"; }, osxList({{"-VectorFlicker", "3"}})},
        {"17 title", [](O& o) { o.biosPop = {2, "euro"}; }, osxList({{"-Bios", "euro"}})},
    };
    // clang-format on
    return table;
}

} // namespace

class ArgumentsArrayTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySettingAtItsInitialValue()
    {
        QCOMPARE(argumentsArray(initialOptions()), joined(initialRows()));
    }

    void eachRowAppendsItsElements_data()
    {
        QTest::addColumn<std::size_t>("number");
        for (std::size_t i = 0; i < cases().size(); ++i)
            QTest::newRow(cases()[i].name) << i;
    }

    void eachRowAppendsItsElements()
    {
        QFETCH(std::size_t, number);
        const Case& row = cases()[number];
        LaunchOptions options = initialOptions();
        row.change(options);
        QList<QStringList> expected = initialRows();
        expected[static_cast<qsizetype>(row.row) - 1] = row.appended;
        QCOMPARE(argumentsArray(options), joined(expected));
    }

    void eachRowOfTheOtherDialect_data()
    {
        QTest::addColumn<std::size_t>("number");
        for (std::size_t i = 0; i < osxCases().size(); ++i)
            QTest::newRow(osxCases()[i].name) << i;
    }

    void eachRowOfTheOtherDialect()
    {
        QFETCH(std::size_t, number);
        LaunchOptions options = initialOptions();
        osxCases()[number].change(options);
        QCOMPARE(argumentsArray2(options), osxCases()[number].expected);
    }

    void knowsWhichOptionsTakeAValue()
    {
        for (const QStringList& row : initialRows()) {
            if (row.size() == 2 && !row[1].startsWith(QLatin1Char('-')))
                QVERIFY2(takesValue(row[0]), qPrintable(row[0]));
            else if (!row.isEmpty())
                QVERIFY2(!takesValue(row[0]), qPrintable(row[0]));
        }
        for (const char* option : {"-effect", "-frameskip", "-wavwrite", "-mngwrite", "-aviwrite",
                                   "-playback", "-record", "-rompath"})
            QVERIFY2(takesValue(QString::fromLatin1(option)), option);
    }
};

TESSERA_TEST(ArgumentsArrayTest);
#include "argumentsarraytest.moc"
