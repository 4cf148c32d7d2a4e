
#include "launch/argumentsarray.h"
#include "launch/storedoptions.h"
#include "platform/defaultscontroller.h"
#include "support/launchpage.h"
#include "support/testmain.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include <memory>

using namespace tessera;

namespace {

const SelectedGame selected{QStringLiteral("foo"), QStringLiteral("Foo"), QStringLiteral("フー")};

// The settings of the launch options, each with what its control is.
constexpr std::array flags{
    keys::Maximize,          keys::Keepaspect,        keys::Unevenstretch,   keys::Resolutionswitc,
    keys::Waitvsync,         keys::Multithreading,    keys::Bilinear,        keys::Effect,
    keys::Artwork,           keys::Backdrops,         keys::Overlays,        keys::Bezels,
    keys::Antialiased,       keys::Soundsmples,       keys::Movierecord,     keys::Mousecontrolle,
    keys::Joystickcontrolle, keys::Lightguncontrolle, keys::Offscreenreload, keys::Registersimultaneous,
    keys::Outputserror,      keys::Replaymove,        keys::Cheatsystem,     keys::Gameinfo,
    keys::Automaticsavestate};
constexpr std::array indexes{
    keys::Displaymode,  keys::Videodriver,  keys::Scaling,      keys::Displayframeskip, keys::Displayrotation,
    keys::Displayflip,  keys::ScalemodePop, keys::Soundoutput,  keys::Soundsmplerate,   keys::Moviematrix,
    keys::Debugoptions, keys::Biostype,     keys::Replaymatrix, keys::Recordfilepop};
constexpr std::array numbers{keys::Displaybeam, keys::Displayflicker, keys::Soundvolume};
constexpr std::array texts{keys::Effectname,  keys::Audiolatency, keys::Wavfilename,
                           keys::Mngfilename, keys::Avifilename,  keys::Playbackfilename};

QList<QLatin1StringView> launchKeys()
{
    QList<QLatin1StringView> names;
    for (const auto& key : flags)
        names << key.name;
    for (const auto& key : indexes)
        names << key.name;
    for (const auto& key : numbers)
        names << key.name;
    for (const auto& key : texts)
        names << key.name;
    names << keys::RomsPath.name;
    return names;
}

} // namespace

class LaunchPagesTest : public QObject
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<UserDefaults> m_settings;
    std::unique_ptr<DefaultsController> m_defaults;

    std::unique_ptr<test::StagedPages> stage(const QString& found = QString())
    {
        return std::make_unique<test::StagedPages>(*m_defaults, [found] { return found; });
    }
    // As the controls have them.
    static LaunchOptions live(test::StagedPages& staged)
    {
        staged.pages.all();
        return staged.pages.options(selected);
    }

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<UserDefaults>(m_folder->filePath("Tessera.ini"));
        m_defaults = std::make_unique<DefaultsController>(*m_settings);
        m_defaults->setInitialValues("Sans", "/home/me");
    }

    void liveAndStoredOptionsAgree_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        QTest::newRow("nothing stored") << QString() << QVariant();
        const auto row = [](QLatin1StringView key, const QVariant& value) {
            QTest::newRow(qPrintable(QString(key) + ' ' + value.toString())) << QString(key) << value;
        };
        for (const auto& key : flags) {
            row(key.name, true);
            row(key.name, false);
        }
        for (const auto& key : indexes) {
            for (const QVariant& value :
                 QVariantList{-1, 0, 1, 2, 3, 4, 5, 6, 7, 8, 11, 12, 99, "no number", 2.5})
                row(key.name, value);
        }
        for (const auto& key : numbers) {
            for (const QVariant& value : QVariantList{0, 1.0, 1.5, -32, "", "typed", "1.0"})
                row(key.name, value);
        }
        for (const auto& key : texts) {
            for (const QVariant& value : QVariantList{"", "a text", QString::fromUtf8("日本 \"x\"")})
                row(key.name, value);
        }
        row(keys::RomsPath.name, "/");
        row(keys::RomsPath.name, "/no such folder");
    }

    void liveAndStoredOptionsAgree()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        if (!key.isEmpty())
            m_settings->setValue(QLatin1StringView(key.toLatin1()), value);
        const auto shown = stage();
        const LaunchOptions now = live(*shown);
        const LaunchOptions stored = storedOptions(*m_defaults, selected);
        QCOMPARE(argumentsArray(now), argumentsArray(stored));
        QCOMPARE(argumentsArray2(now), argumentsArray2(stored));
        QVERIFY(now == stored);
    }

    void everyChangeOfASettingReachesTheOptions()
    {
        const auto shown = stage();
        for (const auto& key : flags)
            m_defaults->setFlag(key, !key.initial);
        for (const auto& key : indexes)
            m_defaults->setIndex(key, key.initial == 1 ? 0 : 1);
        for (const auto& key : numbers)
            m_defaults->setText(key, "7");
        for (const auto& key : texts)
            m_defaults->setText(key, "changed");
        m_defaults->setText(keys::RomsPath, "/");
        const LaunchOptions now = live(*shown);
        QVERIFY(now == storedOptions(*m_defaults, selected));
        QCOMPARE(now.displayframePop, 1);
        QCOMPARE(now.beemTextField, QStringLiteral("7"));
        QVERIFY(now.romsFolderFound);
    }

    void everySettingHasAControlThatStoresIt()
    {
        const auto shown = stage();
        QWidget window;
        QVBoxLayout layout(&window);
        for (OptionPage* page : shown->pages.all())
            layout.addWidget(page);
        window.show();
        for (auto* box : window.findChildren<QCheckBox*>())
            box->click();
        for (auto* popup : window.findChildren<QComboBox*>()) {
            popup->setFocus();
            QTest::keyClick(popup, popup->currentIndex() == 0 ? Qt::Key_End : Qt::Key_Home);
        }
        for (auto* radio : window.findChildren<QRadioButton*>())
            radio->click();
        for (auto* field : window.findChildren<QLineEdit*>()) {
            field->setFocus();
            QTest::keyClicks(field, "9");
        }
        for (const QLatin1StringView name : launchKeys())
            QVERIFY2(m_settings->value(name), name.data());
        QVERIFY(live(*shown) == storedOptions(*m_defaults, selected));
    }

    void numbersAreSentAsTheyAreTyped_data()
    {
        QTest::addColumn<QString>("typed");
        for (const char* typed : {"01.50", "1.50", "0.1234567", "1234567", "1.", ".5", "1e3", "a word"})
            QTest::newRow(typed) << QString::fromLatin1(typed);
    }

    // Now, and after the next start.
    void numbersAreSentAsTheyAreTyped()
    {
        QFETCH(QString, typed);
        const auto shown = stage();
        const std::array fields{test::control<QLineEdit>(shown->pages, "beemTextField"),
                                test::control<QLineEdit>(shown->pages, "flickerTextField"),
                                test::control<QLineEdit>(shown->pages, "soundvolumetextField"),
                                test::control<QLineEdit>(shown->pages, "soundlatencytextField")};
        for (QLineEdit* field : fields) {
            field->selectAll();
            QTest::keyClicks(field, typed);
            QCOMPARE(field->text(), typed);
        }
        const QStringList sent = argumentsArray(live(*shown));
        for (const char* option : {"-beam", "-flicker", "-volume", "-audio_latency"})
            QCOMPARE(sent.value(sent.indexOf(option) + 1), typed);
        QCOMPARE(argumentsArray(storedOptions(*m_defaults, selected)), sent);

        QVERIFY(m_settings->synchronize());
        const QString copy = m_folder->filePath("copy.ini");
        QVERIFY(QFile::copy(m_settings->path(), copy));
        UserDefaults again(copy);
        DefaultsController later(again);
        later.setInitialValues("Sans", "/home/me");
        test::StagedPages pagesLater(later);
        QCOMPARE(argumentsArray(live(pagesLater)), sent);
        QCOMPARE(argumentsArray(storedOptions(later, selected)), sent);
    }

    void showingWritesNothing()
    {
        const auto shown = stage("/usr/games/mame");
        shown->pages.all();
        switchRecordingOff(*m_defaults);
        for (const QLatin1StringView name : launchKeys())
            QVERIFY2(!m_settings->value(name), name.data());
        QVERIFY(!m_settings->value(keys::ExecutionPath.name));
    }

    // A launch needs no page: what is on none comes from the settings.
    void theOptionsMakeNoPages()
    {
        const auto shown = stage();
        m_defaults->setFlag(keys::Waitvsync, true);
        QCOMPARE(shown->pages.options(selected).checkboxWaitvsync, 1);
        QVERIFY(qApp->allWidgets().isEmpty());
        test::control<QCheckBox>(shown->pages, "checkboxWaitvsync")->setTristate();
        test::control<QCheckBox>(shown->pages, "checkboxWaitvsync")->setCheckState(Qt::PartiallyChecked);
        QCOMPARE(shown->pages.options(selected).checkboxWaitvsync, -1);
    }

    void mixedStatesReachTheOptions()
    {
        const auto shown = stage();
        test::control<QCheckBox>(shown->pages, "checkboxMaximize")->setTristate();
        test::control<QCheckBox>(shown->pages, "checkboxMaximize")->setCheckState(Qt::PartiallyChecked);
        const LaunchOptions now = live(*shown);
        QCOMPARE(now.checkboxMaximize, -1);
        const QStringList arguments = argumentsArray(now);
        QVERIFY(!arguments.contains("-maximize") && !arguments.contains("-nomaximize"));
    }

    void numbersInFieldsReadWithoutAPoint()
    {
        const auto shown = stage();
        QCOMPARE(test::control<QLineEdit>(shown->pages, "beemTextField")->text(), QStringLiteral("1"));
        QCOMPARE(test::control<QLineEdit>(shown->pages, "flickerTextField")->text(), QStringLiteral("0"));
        QCOMPARE(test::control<QLineEdit>(shown->pages, "soundvolumetextField")->text(), QStringLiteral("0"));
    }

    void theLogPopupHasASeparator()
    {
        const auto shown = stage();
        const QComboBox* log = test::control<QComboBox>(shown->pages, "errorlogPop");
        QCOMPARE(log->count(), 7);
        QCOMPARE(log->itemData(1, Qt::AccessibleDescriptionRole).toString(), QStringLiteral("separator"));
    }

    void recordingAndReplayCanBeSwitchedOff()
    {
        m_defaults->setFlag(keys::Movierecord, true);
        m_defaults->setFlag(keys::Replaymove, true);
        const auto shown = stage();
        QVERIFY(test::control<QCheckBox>(shown->pages, "checkMovierecord")->isChecked());
        switchRecordingOff(*m_defaults);
        QVERIFY(!m_defaults->flag(keys::Movierecord));
        QVERIFY(!m_defaults->flag(keys::Replaymove));
    }

    void aFoundEmulatorIsShownUntilOneIsChosen()
    {
        const auto shown = stage("/usr/games/mame");
        QLineEdit* field = shown->pages.general().exeTextField;
        QCOMPARE(field->text(), QStringLiteral("/usr/games/mame"));
        m_defaults->setText(keys::ExecutionPath, "/x/mame");
        QCOMPARE(field->text(), QStringLiteral("/x/mame"));
        m_defaults->setText(keys::ExecutionPath, "");
        QCOMPARE(field->text(), QStringLiteral("/usr/games/mame"));
        m_defaults->revertToInitialValues();
        QCOMPARE(field->text(), QStringLiteral("/usr/games/mame"));
    }

    void looksAnewForAnEmulatorWhereItNeedsOne()
    {
        QString installed;
        int searches = 0;
        test::StagedPages shown(*m_defaults, [&] {
            ++searches;
            return installed;
        });
        GeneralPage& page = shown.pages.general();
        EmulatorChoice& choice = shown.emulator;
        QSignalSpy found(&choice, &EmulatorChoice::emulatorFound);
        choice.lookForEmulator();
        QCOMPARE(choice.emulator(), QString());
        QVERIFY(found.isEmpty());

        QFile program(m_folder->filePath("mame"));
        QVERIFY(program.open(QIODevice::WriteOnly));
        installed = program.fileName();
        page.show();
        QCOMPARE(page.exeTextField->text(), installed);
        QCOMPARE(choice.emulator(), installed);
        QCOMPARE(found.size(), 1);

        // As long as it is there, another one does not take its place, and nothing is searched.
        searches = 0;
        installed = "/other/mame";
        choice.lookForEmulator();
        QCOMPARE(searches, 0);
        QCOMPARE(choice.emulator(), program.fileName());
        QVERIFY(program.remove());
        choice.lookForEmulator();
        QCOMPARE(page.exeTextField->text(), installed);
        QCOMPARE(found.size(), 2);
    }

    void aChosenEmulatorThatHasGoneIsNotReplaced()
    {
        m_defaults->setText(keys::ExecutionPath, "/gone/mame");
        const auto shown = stage("/usr/games/mame");
        shown->pages.general().show();
        QCOMPARE(shown->emulator.emulator(), QStringLiteral("/gone/mame"));
        QCOMPARE(shown->pages.general().exeTextField->text(), QStringLiteral("/gone/mame"));
    }

    void anEmulatorCanBeTypedInPlaceOfTheFoundOne()
    {
        const auto shown = stage("/usr/games/mame");
        QWidget window;
        QVBoxLayout layout(&window);
        layout.addWidget(&shown->pages.general());
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QLineEdit* field = shown->pages.general().exeTextField;
        field->setFocus();
        field->selectAll();
        QTest::keyClick(field, Qt::Key_Delete);
        QCOMPARE(field->text(), QString());
        QTest::keyClicks(field, "/m");
        QCOMPARE(field->text(), QStringLiteral("/m"));
        QCOMPARE(m_settings->string(keys::ExecutionPath.name), QStringLiteral("/m"));
        field->clear();
        QTest::keyClicks(field, "x");
        QTest::keyClick(field, Qt::Key_Backspace);
        QTest::keyClick(field, Qt::Key_Return);
        QCOMPARE(field->text(), QStringLiteral("/usr/games/mame"));
    }

    void saysWhenTheChosenRomFolderIsNotUsed()
    {
        const auto shown = stage();
        const QWidget* note = shown->pages.general().findChild<QWidget*>("rompathNote");
        QVERIFY(note);
        QVERIFY(note->isHidden());
        m_defaults->setText(keys::RomsPath, "/roms");
        QVERIFY(!note->isHidden());
        m_defaults->setFlag(keys::Outputserror, true);
        QVERIFY(note->isHidden());
    }

    void everyControlHasItsNameAndAnAccessibleOne()
    {
        const auto shown = stage();
        QSet<QString> names;
        for (OptionPage* page : shown->pages.all()) {
            QVERIFY(!page->identifier().isEmpty());
            for (auto* matrix : page->findChildren<QButtonGroup*>())
                names << matrix->objectName();
            for (auto* control : page->findChildren<QWidget*>()) {
                if (!qobject_cast<QComboBox*>(control) && !qobject_cast<QLineEdit*>(control)
                    && !qobject_cast<QCheckBox*>(control))
                    continue;
                names << control->objectName();
                const auto* box = qobject_cast<QCheckBox*>(control);
                QVERIFY2(box ? !box->text().isEmpty() : !control->accessibleName().isEmpty(),
                         qPrintable(control->objectName()));
            }
        }
        const QSet<QString> expected{"launchusingPop",
                                     "exeTextField",
                                     "devicevideoPop",
                                     "displaymodePop",
                                     "scalingPop",
                                     "checkboxMaximize",
                                     "checkboxAspect",
                                     "checkboxStretch",
                                     "checkboxResolution",
                                     "checkboxWaitvsync",
                                     "checkboxMultithread",
                                     "displayframePop",
                                     "displayrotation",
                                     "displayflipPop",
                                     "checkboxBilinear",
                                     "checkboxEffect",
                                     "effectTextField",
                                     "scalemodePop",
                                     "checkboxArtwork",
                                     "checkboxBackdrops",
                                     "checkboxOverlays",
                                     "checkboxBezels",
                                     "checkboxAntialias",
                                     "beemTextField",
                                     "flickerTextField",
                                     "popup_Sound",
                                     "soundvolumetextField",
                                     "soundsampleratePop",
                                     "soundlatencytextField",
                                     "checkboxSoundsamples",
                                     "checkMovierecord",
                                     "recordMatrix",
                                     "wavnameTextField",
                                     "mngnameTextField",
                                     "avinameTextField",
                                     "biosPop",
                                     "checkBoxReplay",
                                     "replayMatrix",
                                     "recordfilePop",
                                     "textfildPlayback",
                                     "checkboxCheat",
                                     "checkboxGameinfo",
                                     "checkboxAutosave",
                                     "errorlogPop",
                                     "checkboxMouse",
                                     "checkboxJoystick",
                                     "checkboxLightgun",
                                     "checkboxOffscreen",
                                     "checkboxSteadykey",
                                     "checkboxRompath",
                                     "romsTextField",
                                     "osxTextField",
                                     "appTextField"};
        QCOMPARE(names, expected);
    }
};

TESSERA_TEST(LaunchPagesTest);
#include "launchpagestest.moc"
