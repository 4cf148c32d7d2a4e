#include "launch/emulatorprofile.h"

#include "launch/usagetexts.h"
#include "support/testmain.h"

using namespace tessera;

namespace {

EmulatorProfile oldProfile()
{
    return *EmulatorProfile::fromUsage(test::oldUsage());
}

EmulatorProfile newProfile()
{
    return *EmulatorProfile::fromUsage(test::newUsage());
}

} // namespace

class EmulatorProfileTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void noEmulatorsTextGivesNoProfile_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("empty") << QByteArray();
        QTest::newRow("another program")
            << QByteArray("Usage: ls [OPTION]... [FILE]...\n  -a, --all\n-l  long\n");
        QTest::newRow("an error") << QByteArray("Error: unknown option: -showusage\n");
        QTest::newRow("binary") << QByteArray("\x7f"
                                              "ELF\0\xff\xfe-\n-\n--\n- \n",
                                              14);
    }

    void noEmulatorsTextGivesNoProfile()
    {
        QFETCH(QByteArray, text);
        QVERIFY(!EmulatorProfile::fromUsage(text));
    }

    void listsOptionsAndTheirOpposites()
    {
        const EmulatorProfile profile = newProfile();
        for (const char* option :
             {"-rotate", "-norotate", "-rompath", "-joystick_saturation", "-beam_intensity_weight"})
            QVERIFY2(profile.lists(QString::fromLatin1(option)), option);
        for (const char* option :
             {"-multithreading", "-nomultithreading", "-beam", "-joystick_satur", "-beam_intensity", "rotate",
              "-", "", "-no", "-Usage:", "-beam_intensity_weighty"})
            QVERIFY2(!profile.lists(QString::fromLatin1(option)), option);
    }

    void offersOptionsInTheProgramsWords()
    {
        const auto profile = EmulatorProfile::fromUsage("Options:\r\n\r\n# PATHS\r\n"
                                                        "-rompath             path to ROM sets\r\n"
                                                        "-cheat               enable cheat subsystem\r\n"
                                                        "-a_name_as_long_as_that_description\r\n"
                                                        "-bench\r\n");
        QVERIFY(profile.has_value());
        QStringList offered;
        for (const EmulatorProfile::Option& option : profile->options())
            offered << option.name + u'=' + option.description;
        QCOMPARE(offered,
                 (QStringList{QStringLiteral("-rompath=path to ROM sets"),
                              QStringLiteral("-cheat=enable cheat subsystem"), QStringLiteral("-bench=")}));
    }

    void takesLineEndsOfWindows()
    {
        const auto profile
            = EmulatorProfile::fromUsage(test::oldUsage().append("-bare\n").replace("\n", "\r\n"));
        QVERIFY(profile);
        QVERIFY(profile->lists(u"-bare"));
    }

    void readsTheProgramsOwnRomFolders_data()
    {
        QTest::addColumn<QByteArray>("config");
        QTest::addColumn<QString>("folders");
        QTest::newRow("none") << QByteArray() << "";
        QTest::newRow("another setting") << QByteArray("rompathology  /x\nmyrompath  /x\n") << "";
        QTest::newRow("a remark") << QByteArray("#rompath  /x\n# rompath <NULL> (not set)\n") << "";
        QTest::newRow("without a value") << QByteArray("rompath                   \n") << "";
        QTest::newRow("one") << QByteArray("rompath                   roms\n") << "roms";
        QTest::newRow("several") << QByteArray(
            "#\n# PATHS\n#\nhomepath  .\nrompath  $HOME/mame/roms;/usr/x\n")
                                 << "$HOME/mame/roms;/usr/x";
        QTest::newRow("with a blank")
            << QByteArray("rompath                   \"/my roms;/x\"\n") << "/my roms;/x";
        QTest::newRow("line ends of Windows") << QByteArray("rompath  C:\\roms\r\n") << "C:\\roms";
        QTest::newRow("no ASCII") << QByteArray("rompath  /ゲーム\n") << QString::fromUtf8("/ゲーム");
    }

    void readsTheProgramsOwnRomFolders()
    {
        QFETCH(QByteArray, config);
        QFETCH(QString, folders);
        QCOMPARE(EmulatorProfile::fromUsage(test::newUsage().append(config))->romFolders(), folders);
    }

    void readsWhereSnapshotsGo_data()
    {
        QTest::addColumn<QByteArray>("config");
        QTest::addColumn<QString>("folder");
        QTest::newRow("not told") << QByteArray("rompath  roms\n") << "";
        QTest::newRow("beside the program")
            << QByteArray("snapshot_directory        snap\n") << "/opt/mame/snap";
        QTest::newRow("elsewhere") << QByteArray("snapshot_directory /my snaps/\n") << "/my snaps";
        QTest::newRow("another setting") << QByteArray("snapshot_directory2 /x\n") << "";
    }

    void readsWhereSnapshotsGo()
    {
        QFETCH(QByteArray, config);
        const auto profile = EmulatorProfile::fromUsage(test::newUsage().append(config));
        QTEST(profile->snapshotFolderList(QStringLiteral("/opt/mame")).join(u';'), "folder");
    }

    // A name of twenty characters leaves no blank before what describes it.
    void aNameAsLongAsItsColumnRunsIntoItsDescription()
    {
        const auto profile = EmulatorProfile::fromUsage("-rompath             path\n"
                                                        "-nineteen_characters words\n"
                                                        "-twenty_characters_nowords\n");
        QVERIFY(profile);
        QVERIFY(profile->lists(u"-nineteen_characters"));
        QVERIFY(profile->lists(u"-twenty_characters_no"));
        QVERIFY(profile->lists(u"-notwenty_characters_no"));
        for (const char* option : {"-nineteen_character", "-nineteen_characters_", "-twenty_characters_n",
                                   "-twenty_characters_noo", "twenty_characters_no"})
            QVERIFY2(!profile->lists(QString::fromLatin1(option)), option);
        QStringList offered;
        for (const EmulatorProfile::Option& option : profile->options())
            offered << option.name + u'=' + option.description;
        QCOMPARE(offered, (QStringList{"-rompath=path", "-nineteen_characters=words"}));
    }

    void foldersAreNamedWithVariablesAndFromTheProgramsFolder()
    {
        qputenv("TESSERA_A", "/a dir");
        const auto profile = EmulatorProfile::fromUsage(
            test::newUsage().append("rompath  $TESSERA_A/x;${TESSERA_A}_y;/p/${TESSERA_A}/$TESSERA_A;;rel/"
                                    ";/q/../r;$TESSERA_MISSING/z\n"
                                    "inipath  $TESSERA_A;.;ini\n"
                                    "snapshot_directory  \"${TESSERA_A}/snap\"\n"));
        QCOMPARE(profile->romFolderList("/opt/mame"),
                 QStringList({"/a dir/x", "/a dir_y", "/p/a dir/a dir", "/opt/mame/rel", "/r", "/z"}));
        QCOMPARE(profile->settingsFiles("/opt/mame"),
                 QStringList({"/a dir/mame.ini", "/opt/mame/mame.ini", "/opt/mame/ini/mame.ini"}));
        QCOMPARE(profile->snapshotFolderList("/opt/mame"), QStringList("/a dir/snap"));
        qunsetenv("TESSERA_A");
        QCOMPARE(newProfile().romFolderList("/opt/mame"), QStringList());
        QCOMPARE(newProfile().settingsFiles("/opt/mame"), QStringList());
    }

    // For a shell that reads the options.
    void quotesAreKeptWhereTheyAreWanted()
    {
        const QStringList built{"-effect", "\"scan lines\"", "-bios", "\"\"", "-nomultithreading", "-cheat"};
        const auto fitted = newProfile().fit(built, EmulatorProfile::Quotes::Kept);
        QCOMPARE(fitted.arguments, QStringList({"-effect", "\"scan lines\"", "-cheat"}));
        QCOMPARE(fitted.leftOut, QStringList({"-bios \"\"", "-nomultithreading"}));
    }

    void anOptionWhoseValueIsMissingIsTakenAsItStands()
    {
        const auto fitted = newProfile().fit({"-cheat", "-rompath"});
        QCOMPARE(fitted.arguments, QStringList({"-cheat", "-rompath"}));
    }

    void leavesOutWhatIsNotListed()
    {
        const auto fitted
            = newProfile().fit({"-rotate", "-nomultithreading", "-antialias", "-nouse_bezels", "-norol"});
        QCOMPARE(fitted.arguments, QStringList({"-rotate", "-norol"}));
        QCOMPARE(fitted.leftOut, QStringList({"-nomultithreading", "-antialias", "-nouse_bezels"}));
    }

    void leavesOutAValueWithItsOption()
    {
        auto usage = test::newUsage().replace("-scalemode ", "-othermode ");
        const auto fitted = EmulatorProfile::fromUsage(usage)->fit({"-scalemode", "-rotate", "-rotate"});
        QCOMPARE(fitted.arguments, QStringList({"-rotate"}));
        QCOMPARE(fitted.leftOut, QStringList({"-scalemode -rotate"}));
    }

    void aValueThatLooksLikeAnOptionIsAValue()
    {
        const auto fitted = newProfile().fit({"-volume", "-12", "-rotate"});
        QCOMPARE(fitted.arguments, QStringList({"-volume", "-12", "-rotate"}));
        QVERIFY(fitted.leftOut.isEmpty());
    }

    void sendsBeamUnderTheNameThatExists()
    {
        QCOMPARE(oldProfile().fit({"-beam", "2"}).arguments, QStringList({"-beam", "2"}));
        QCOMPARE(newProfile().fit({"-beam", "2"}).arguments, QStringList({"-beam_width_min", "2"}));
        const auto both
            = EmulatorProfile::fromUsage(test::oldUsage().append("-beam_width_min      smallest width\n"));
        QCOMPARE(both->fit({"-beam", "2"}).arguments, QStringList({"-beam", "2"}));
        const auto neither = EmulatorProfile::fromUsage(test::newUsage().replace("-beam_width_min", "-gone"))
                                 ->fit({"-beam", "2"});
        QVERIFY(neither.arguments.isEmpty());
        QCOMPARE(neither.leftOut, QStringList({"-beam 2"}));
    }

    void takesQuotesOffValues()
    {
        const auto fitted = newProfile().fit({"-effect", "\"scan lines\"", "-record", "\"Foo \"Bar\".inp\"",
                                              "-playback", "\"", "-rompath", "\"/my roms\""});
        QCOMPARE(fitted.arguments,
                 QStringList({"-effect", "scan lines", "-record", "Foo \"Bar\".inp", "-playback", "\"",
                              "-rompath", "/my roms"}));
    }

    void leavesOutEmptyValues()
    {
        const auto fitted = newProfile().fit({"-bios", "\"\"", "-flicker", "", "-cheat"});
        QCOMPARE(fitted.arguments, QStringList({"-cheat"}));
        QCOMPARE(fitted.leftOut, QStringList({"-bios \"\"", "-flicker \"\""}));
    }

    void soundIsASwitchWhereItTakesNoValue()
    {
        QCOMPARE(oldProfile().fit({"-sound", "sdl", "-volume", "0"}).arguments,
                 QStringList({"-sound", "-volume", "0"}));
        QCOMPARE(oldProfile().fit({"-sound", "none"}).arguments, QStringList({"-nosound"}));
        QCOMPARE(newProfile().fit({"-sound", "sdl"}).arguments, QStringList({"-sound", "sdl"}));
        QCOMPARE(newProfile().fit({"-sound", "none"}).arguments, QStringList({"-sound", "none"}));
    }

    void readsTheValuesThatAnOptionTakes_data()
    {
        QTest::addColumn<QByteArray>("description");
        QTest::addColumn<QStringList>("values");
        QTest::newRow("or") << QByteArray("video output method: soft or opengl")
                            << QStringList{"soft", "opengl"};
        QTest::newRow("several") << QByteArray("output method: none, soft, accel or bgfx")
                                 << QStringList{"none", "soft", "accel", "bgfx"};
        QTest::newRow("comma and or") << QByteArray("method: a, b, or c") << QStringList{"a", "b", "c"};
        QTest::newRow("an aside") << QByteArray("Scale mode: none, async, yv12 (-video soft only)")
                                  << QStringList{"none", "async", "yv12"};
        QTest::newRow("a switch") << QByteArray("enable sound output") << QStringList();
        QTest::newRow("nothing behind it") << QByteArray("method:") << QStringList();
        QTest::newRow("carriage return") << QByteArray("method: a, b\r") << QStringList{"a", "b"};
    }

    void readsTheValuesThatAnOptionTakes()
    {
        QFETCH(QByteArray, description);
        QFETCH(QStringList, values);
        const QByteArray usage = "-rompath             path\n-video               " + description
            + "\n-other               x: y\n";
        const auto profile = EmulatorProfile::fromUsage(usage);
        QVERIFY(profile);
        QCOMPARE(profile->valuesOf("-video"), values);
        QCOMPARE(profile->valuesOf("-scalemode"), QStringList());
    }

    void takesARenamedOption()
    {
        const auto before = EmulatorProfile::fromUsage(test::oldUsage());
        const auto since = EmulatorProfile::fromUsage(test::newUsage());
        QVERIFY(before && since);
        QVERIFY(before->takes("-beam") && since->takes("-beam"));
        QVERIFY(before->takes("-antialias") && !since->takes("-antialias"));
    }
};

TESSERA_TEST(EmulatorProfileTest);
#include "emulatorprofiletest.moc"
