#include "tools/ui/scripttool.h"

#include "tools/ui/scriptpage.h"
#include "utilitystage.h"
#include "widgets/theme.h"

#include <QComboBox>

using namespace tessera;

namespace {

struct Stage : test::UtilityStage {
    ScriptPage& page = *window.scriptPage;

    Stage() { rooms.scriptFolder = folder.path(); }
};

} // namespace

class ScriptToolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aScriptIsSaved_data()
    {
        QTest::addColumn<int>("emulator");
        QTest::addColumn<QString>("text");
        QTest::newRow("command line") << 0 << "#!/bin/sh\n\ncd %1/apps\n./0 pong -one";
        QTest::newRow("MAME OS X") << 1 << "#!/bin/sh\n\n\"%1/apps/1\" -Game pong -Two 1";
    }

    void aScriptIsSaved()
    {
        QFETCH(int, emulator);
        QFETCH(QString, text);
        Stage stage;
        stage.controller.setIndex(keys::script_emu, emulator);
        stage.controller.setIndex(keys::script_format, 1);
        stage.desktop.answerSave("pong.sh", stage.path("out.sh"));
        stage.press(stage.page.button_make);
        QCOMPARE(QString::fromUtf8(stage.read("out.sh")), text.arg(stage.folder.path()));
        QCOMPARE(stage.information(), QString("Saved a Script file."));
        QCOMPARE(stage.desktop.transcript(), QStringList({"save pong.sh", "sound st_ovenbell"}));
        QCOMPARE(stage.desktop.saveRequests.at(0).title, QString("Save Script file"));
        // Whatever name is given, nothing is added to it.
        QCOMPARE(stage.desktop.saveRequests.at(0).extensions, QStringList());
        QVERIFY(!stage.isIndicatorRunning());
    }

    void optionsAndNameAreChosen()
    {
        Stage stage;
        stage.controller.setIndex(keys::script_option, 1);
        stage.controller.setIndex(keys::script_filename, 6);
        stage.desktop.answerSave(QString::fromUtf8("SDL MAME_ポン.tool"), stage.path("out.tool"));
        stage.press(stage.page.button_make);
        QVERIFY(stage.read("out.tool").endsWith("\n./0 pong"));
        QVERIFY(QFileInfo(stage.path("out.tool")).isExecutable());
    }

    void withoutAGameThereIsNothingToMake()
    {
        Stage stage;
        stage.rooms.selected = {};
        stage.press(stage.page.button_make);
        QCOMPARE(stage.information(), QString("Game is not selected."));
        QCOMPARE(stage.desktop.transcript(), QStringList({"beep"}));
    }

    void cancelIsSaid()
    {
        Stage stage;
        stage.desktop.answerSave("pong.tool", std::nullopt);
        stage.press(stage.page.button_make);
        QCOMPARE(stage.information(), QString("Canceled."));
        QCOMPARE(stage.desktop.transcript(), QStringList({"save pong.tool"}));
        QVERIFY(!stage.isIndicatorRunning());
    }

    void aFailureIsSaidWithTheSameSound()
    {
        Stage stage;
        const QString path = stage.path("no such folder/out.tool");
        stage.desktop.answerSave("pong.tool", path);
        stage.press(stage.page.button_make);
        QVERIFY2(stage.information().startsWith("Error writing file at " + path + " - "),
                 qPrintable(stage.information()));
        QCOMPARE(stage.desktop.transcript().last(), QString("sound st_ovenbell"));
    }

    void theChoicesAreKept()
    {
        Stage stage;
        const std::array<std::pair<QComboBox*, const Key<float>*>, 4> popups{
            {{stage.page.formatPop, &keys::script_format},
             {stage.page.emulatorPop, &keys::script_emu},
             {stage.page.filenamePop, &keys::script_filename},
             {stage.page.preoptionPop, &keys::script_option}}};
        for (const auto& [popup, key] : popups) {
            QCOMPARE(popup->currentIndex(), 0);
            popup->setCurrentIndex(1);
            Q_EMIT popup->activated(1);
            QCOMPARE(stage.controller.index(*key), 1);
            QVERIFY(!popup->accessibleName().isEmpty());
        }
        QCOMPARE(stage.page.filenamePop->count(), 7);
        QCOMPARE(stage.page.emulatorPop->itemText(0), QString("SDL MAME"));
    }

    void thePictureIsTheFormats()
    {
        Stage stage;
        QLabel& view = *stage.page.scriptimageView;
        const auto picture
            = [&](const char* name) { return theme::icon(name).pixmap(view.size()).toImage(); };
        constexpr std::array names{"script_com", "script_sh", "script_apple"};
        constexpr std::array formats{"script_tool", "script_sh", "script_scpt"};
        for (const std::size_t format : {0U, 1U, 2U}) {
            stage.page.formatPop->setCurrentIndex(static_cast<int>(format));
            QCOMPARE(view.pixmap().toImage(), picture(names[format]));
            QCOMPARE(view.accessibleName(), QString(formats[format]));
            QVERIFY(picture(names[format]) != picture(names[(format + 1) % 3]));
        }
        // Any other position changes nothing.
        stage.page.formatPop->setCurrentIndex(-1);
        QCOMPARE(view.pixmap().toImage(), picture("script_apple"));
        QCOMPARE(view.accessibleName(), QString("script_scpt"));
    }

    void theFirstPictureIsTheStoredFormats()
    {
        Stage stage;
        QCOMPARE(stage.page.scriptimageView->pixmap().toImage(),
                 theme::icon("script_com").pixmap(stage.page.scriptimageView->size()).toImage());
        QVERIFY(!stage.page.scriptimageView->pixmap().isNull());
    }

    void anotherApplicationOpensTheArchiveWithoutOptions()
    {
        Stage stage;
        stage.controller.setIndex(keys::script_emu, 2);
        stage.desktop.answerSave("pong.tool", stage.path("out.tool"));
        stage.press(stage.page.button_make);
        QCOMPARE(QString::fromUtf8(stage.read("out.tool")),
                 QString("open -a \"%1\" \"%2/Documents/MacMAME User Data/ROMs/pong.zip\"")
                     .arg(stage.path("apps/2"), QDir::homePath()));
    }

    void aPositionWithoutItemMakesAnEmptyScript_data()
    {
        QTest::addColumn<int>("emulator");
        QTest::addColumn<int>("format");
        QTest::addColumn<QString>("name");
        QTest::newRow("emulator") << -1 << 2 << "pong.scpt";
        QTest::newRow("format") << 0 << -1 << "pong";
    }

    void aPositionWithoutItemMakesAnEmptyScript()
    {
        QFETCH(int, emulator);
        QFETCH(int, format);
        QFETCH(QString, name);
        Stage stage;
        stage.page.emulatorPop->setCurrentIndex(emulator);
        stage.page.formatPop->setCurrentIndex(format);
        stage.desktop.answerSave(name, stage.path("out"));
        stage.press(stage.page.button_make);
        QVERIFY(QFile::exists(stage.path("out")));
        QCOMPARE(stage.read("out"), QByteArray());
    }
};

TESSERA_TEST(ScriptToolTest);
#include "scripttooltest.moc"
