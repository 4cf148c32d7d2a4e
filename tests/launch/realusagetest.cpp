#include "launch/commandline.h"

#include "launch/argumentsarray.h"
#include "launch/storedoptions.h"
#include "platform/defaultscontroller.h"
#include "support/testmain.h"

#include <QFile>
#include <QTemporaryDir>

using namespace tessera;

/// What real emulators of four ages make of the initial settings.
class RealUsageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fitsTheInitialSettings_data()
    {
        const QStringList gone{"-nomultithreading", "-nouse_backdrops", "-nouse_overlays",
                               "-nouse_bezels",     "-antialias",       "-bios \"\""};
        QTest::addColumn<QString>("file");
        QTest::addColumn<QStringList>("leftOut");
        QTest::addColumn<QStringList>("contained");
        QTest::newRow("0.141") << "mame0141.txt" << QStringList({"-bios \"\""})
                               << QStringList({"-beam 1", "-sound -volume"});
        QTest::newRow("0.148") << "mame0148.txt" << QStringList({"-bios \"\""})
                               << QStringList({"-beam 1", "-sound -volume"});
        QTest::newRow("0.228") << "mame0228.txt" << gone
                               << QStringList({"-beam_width_min 1", "-sound sdl -volume"});
        QTest::newRow("0.251") << "mame0251.txt" << gone
                               << QStringList({"-beam_width_min 1", "-sound sdl -volume"});
    }

    void fitsTheInitialSettings()
    {
        QFETCH(QString, file);
        QFETCH(QStringList, leftOut);
        QFETCH(QStringList, contained);
        QFile usage(QStringLiteral(TESSERA_REAL_DATA "/showusage/") + file);
        QVERIFY2(usage.open(QIODevice::ReadOnly), qPrintable(usage.fileName()));
        const auto profile = EmulatorProfile::fromUsage(usage.readAll());
        QVERIFY(profile);

        QTemporaryDir folder;
        UserDefaults settings(folder.filePath("Tessera.ini"));
        DefaultsController defaults(settings);
        defaults.setInitialValues("Sans", "/home/me");
        const CommandLine line
            = commandLine(profile, "pong", argumentsArray(storedOptions(defaults, {"pong", {}, {}})), {});
        QCOMPARE(line.leftOut, leftOut);
        const QString joined = line.arguments.join(' ');
        for (const QString& part : contained)
            QVERIFY2(joined.contains(part), qPrintable(joined));
    }

    void readsTheValuesOfPopUps_data()
    {
        QTest::addColumn<QString>("file");
        QTest::addColumn<QString>("video");
        QTest::addColumn<QString>("sound");
        QTest::addColumn<QString>("scale");
        const char* today = "none hwblit hwbest yv12 yuy2 yv12x2 yuy2x2";
        const char* before = "none async yv12 yuy2 yv12x2 yuy2x2";
        QTest::newRow("0.141") << "mame0141.txt" << "soft opengl" << "" << before;
        QTest::newRow("0.148") << "mame0148.txt" << "soft opengl" << "" << before;
        QTest::newRow("0.228") << "mame0228.txt" << "none soft accel opengl bgfx" << "sdl portaudio none"
                               << today;
        QTest::newRow("0.251") << "mame0251.txt" << "none soft accel opengl bgfx"
                               << "sdl portaudio pulse none" << today;
    }

    void readsTheValuesOfPopUps()
    {
        QFETCH(QString, file);
        QFile usage(QStringLiteral(TESSERA_REAL_DATA "/showusage/") + file);
        QVERIFY2(usage.open(QIODevice::ReadOnly), qPrintable(usage.fileName()));
        const auto profile = EmulatorProfile::fromUsage(usage.readAll());
        QVERIFY(profile);
        QTEST(profile->valuesOf("-video").join(' '), "video");
        QTEST(profile->valuesOf("-sound").join(' '), "sound");
        QTEST(profile->valuesOf("-scalemode").join(' '), "scale");
    }

    void knowsOverlongNames()
    {
        QFile usage(QStringLiteral(TESSERA_REAL_DATA "/showusage/mame0251.txt"));
        QVERIFY(usage.open(QIODevice::ReadOnly));
        const auto profile = EmulatorProfile::fromUsage(usage.readAll());
        for (const char* option : {"-beam_intensity_weight", "-joystick_contradictory",
                                   "-joystick_saturation", "-exit_after_playback"})
            QVERIFY2(profile->lists(QString::fromLatin1(option)), option);
    }
};

TESSERA_TEST(RealUsageTest);
#include "realusagetest.moc"
