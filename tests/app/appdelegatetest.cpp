#include "stagedapp.h"

#include "app/desks/favouritesdesk.h"
#include "app/desks/infodesk.h"
#include "app/windows/mainwindow.h"
#include "app/windows/preferenceswindow.h"
#include "catalogue/ui/appearancepage.h"
#include "catalogue/ui/gamelistcontroller.h"
#include "catalogue/ui/gametableview.h"
#include "catalogue/ui/recordediting.h"
#include "launch/ui/launchcontroller.h"
#include "widgets/logview.h"
#include "launch/ui/logwindow.h"
#include "support/installedtexts.h"
#include "support/testmain.h"
#include "tools/ui/utilityobject.h"
#include "tools/ui/utilitywindow.h"
#include "widgets/deletionfocusring.h"
#include "widgets/fontpanel.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QSignalSpy>
#include <QStackedWidget>
#include <QToolButton>
#include <QWheelEvent>

#include <algorithm>

using namespace tessera;
using test::StagedApp;

namespace {

void addLanguages()
{
    QTest::addColumn<QString>("language");
    QTest::newRow("English") << QStringLiteral("en");
    QTest::newRow("Japanese") << QStringLiteral("ja");
}

// Words, and no key that nobody translated.
bool isText(const QString& text)
{
    static const QRegularExpression key(QStringLiteral("[a-z]_[A-Za-z]"));
    return !text.trimmed().isEmpty() && !text.contains(key);
}

// Of a menu's command, and of everything below it; counts the commands.
void checkNames(const QAction& action, int& commands)
{
    QVERIFY2(action.isSeparator() || isText(action.text()), qPrintable(action.objectName()));
    if (QMenu* menu = action.menu()) {
        Q_EMIT menu->aboutToShow();
        for (const QAction* command : menu->actions())
            checkNames(*command, commands);
    } else if (!action.isSeparator()) {
        ++commands;
    }
}

// What the keyboard reaches or what shows a state. The parts of a table, of a pop-up and of a scrolled page
// are no controls of ours.
bool isControl(const QWidget& widget)
{
    if (qobject_cast<const QProgressBar*>(&widget))
        return true;
    const bool isPart = widget.objectName().startsWith(QStringLiteral("qt_"))
        || qobject_cast<const QComboBox*>(widget.parentWidget()) || qobject_cast<const QScrollArea*>(&widget)
        || widget.focusProxy() != nullptr;
    return !isPart && (widget.focusPolicy() & Qt::TabFocus) != 0;
}

// What a screen reader says. Qt itself would take the value of a pop-up for its name.
QString accessibleName(const QWidget& control)
{
    if (!control.accessibleName().isEmpty())
        return control.accessibleName();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&control))
        return button->text();
    for (const QLabel* label : control.window()->findChildren<QLabel*>()) {
        if (label->buddy() == &control)
            return label->text();
    }
    return QString();
}

// A name may say more than what is written on the button, but not something else.
bool isNamedAsItReads(const QWidget& control)
{
    const auto* button = qobject_cast<const QAbstractButton*>(&control);
    return button == nullptr || accessibleName(control).contains(button->text());
}

QString described(const QWidget& control)
{
    return QLatin1String(control.metaObject()->className()) + QLatin1Char(' ') + control.objectName()
        + QLatin1Char(' ') + accessibleName(control);
}

} // namespace

class AppDelegateTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFirstStartWritesNoneOfTheInitialValues()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QVERIFY(staged.defaults.synchronize());
        const UserDefaults onDisk(staged.settingsPath());
        QStringList written;
        for (const InitialSetting& row : initialSettings) {
            if (onDisk.value(row.name))
                written << row.name;
        }
        QCOMPARE(written, QStringList());
    }

    void theCatalogueIsListedAtStart()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QCOMPARE(staged.app->gameList().list().size(), std::size_t(4));
        QVERIFY(staged.app->mainWindow().isVisible());
        QCOMPARE(staged.desktop.transcript(), QStringList());
    }

    void aMissingStoreGivesAnErrorAndAnEmptyList()
    {
        StagedApp staged;
        staged.expectMissingStore(-1);
        staged.start();
        QCOMPARE(staged.app->catalogue().records().size(), std::size_t(0));
        QVERIFY(staged.app->mainWindow().isVisible());
        QVERIFY(!QFile::exists(staged.storePath()));
    }

    void theStoreFolderIsMade()
    {
        StagedApp staged;
        QVERIFY(QDir(staged.path(QStringLiteral("data"))).removeRecursively());
        staged.expectMissingStore(-1);
        staged.start();
        QVERIFY(QFileInfo(staged.app->applicationSupportFolder()).isDir());
    }

    void theTitleNamesTheLaunchMode()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QCOMPARE(staged.app->mainWindow().windowTitle(), QStringLiteral("Tessera  |  SDL MAME"));
    }

    void recordingAndReplayAreOffAfterTheStart()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.defaults.setValue(keys::Movierecord.name, true);
        staged.defaults.setValue(keys::Replaymove.name, true);
        staged.start();
        staged.app->showPrefsWindow();
        for (const char* name : {"checkMovierecord", "checkBoxReplay"})
            QVERIFY(!staged.app->preferencesWindow().findChild<QCheckBox*>(QLatin1String(name))->isChecked());
        // What a launch reads.
        QCOMPARE(staged.defaults.value(keys::Movierecord.name), QVariant(false));
        QCOMPARE(staged.defaults.value(keys::Replaymove.name), QVariant(false));
    }

    void openingNoFileStartsNothing()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QVERIFY(!staged.app->application_openFile(QString()));
        QVERIFY(staged.app->logWindow().infomationTextView->isEmpty());
        QVERIFY(!staged.app->launcher().isRunning());
    }

    void aFileGivenAtTheStartIsLaunched()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start(QStringLiteral("/roms/pong.zip"));
        QVERIFY(staged.app->logWindow().infomationTextView->text().startsWith(
            QStringLiteral("SDL MAME :  pong  Launch...\n\n")));
        QVERIFY(staged.desktop.transcript().contains(QStringLiteral("recent /roms/pong.zip")));
    }

    void anotherStartComesForwardWithItsFile()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->mainWindow().hide();
        staged.app->comeForward(QStringLiteral("/roms/qix.zip"));
        QVERIFY(staged.app->mainWindow().isVisible());
        QVERIFY(
            staged.app->logWindow().infomationTextView->text().contains(QStringLiteral("qix  Launch...")));
    }

    void aFileIsNotForgottenForAStartWithoutOne()
    {
        StagedApp staged;
        staged.writeStore("<database><object type=\"MAME\"");
        staged.desktop.answerError(QString());
        staged.desktop.whileAsked = [&staged] {
            staged.app->comeForward(QStringLiteral("/roms/qix.zip"));
            staged.app->comeForward(QString());
        };
        staged.start();
        QVERIFY(staged.desktop.transcript().contains(QStringLiteral("recent /roms/qix.zip")));
    }

    void aMissingEmulatorIsSaidAtTheStart()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.useEmulator(QStringLiteral("/nowhere/mame"));
        staged.desktop.answerAlert(QStringLiteral("alert_Message1"), 1);
        staged.start();
        QCOMPARE(staged.desktop.transcript(),
                 (QStringList{QStringLiteral("beep"), QStringLiteral("alert alert_Message1")}));
    }

    void resetBringsBackTheInitialValues()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->showPrefsWindow();
        auto* maximize
            = staged.app->preferencesWindow().findChild<QCheckBox*>(QStringLiteral("checkboxMaximize"));
        maximize->click();
        staged.defaults.setValue(keys::Videodriver.name, 0);
        staged.defaults.setValue(keys::Launchgamesusing.name, 2);
        staged.defaults.setValue(keys::GamelistColoring.name, true);
        LogView& log = *staged.app->logWindow().infomationTextView;
        const QProgressBar& progress = *staged.app->mainWindow().progressIndicator;
        log.replace(QStringLiteral("before"));
        QStringList steps;
        const auto note = [&](const char* step) {
            steps << QStringLiteral("%1: %2, %3, %4")
                         .arg(QLatin1StringView(step),
                              staged.defaults.value(keys::Videodriver.name) == QVariant(2.0)
                                  ? QStringLiteral("reverted")
                                  : QStringLiteral("not reverted"),
                              progress.isHidden() ? QStringLiteral("at rest") : QStringLiteral("busy"),
                              log.text());
        };
        connect(&staged.app->program().reset, &SettingsReset::defaultAction, this, [&] { note("posted"); });
        connect(&staged.app->launcher(), &LaunchController::launchModeChanged, this, [&] { note("mode"); });

        staged.desktop.answerAlert(QStringLiteral("reset_Message"), 0);
        staged.app->preferencesWindow().resetButton->click();

        QCOMPARE(steps,
                 (QStringList{QStringLiteral("posted: reverted, busy, before"),
                              QStringLiteral("mode: reverted, busy, before")}));
        note("end");
        QCOMPARE(steps.constLast(), QStringLiteral("end: reverted, at rest, preferences_ini"));
        QVERIFY(!maximize->isChecked());
        QCOMPARE(staged.app->mainWindow().windowTitle(), QStringLiteral("Tessera  |  SDL MAME"));
        QCOMPARE(staged.defaults.value(keys::GamelistColoring.name), QVariant(true));
        QCOMPARE(staged.defaults.string(keys::ExecutionPath.name), QStringLiteral(TESSERA_FAKEEMULATOR));
        QCOMPARE(staged.desktop.transcript(),
                 (QStringList{QStringLiteral("alert reset_Message"), QStringLiteral("sound Tink")}));
    }

    void resetAsksFirst_data()
    {
        QTest::addColumn<bool>("byMenu");
        QTest::newRow("the button") << false;
        QTest::newRow("the menu") << true;
    }
    void resetAsksFirst()
    {
        QFETCH(bool, byMenu);
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.defaults.setValue(keys::Videodriver.name, 0);
        staged.desktop.answerAlert(QStringLiteral("reset_Message"), 1);
        if (byMenu)
            staged.app->mainWindow().menuBar()->findChild<QAction*>(QStringLiteral("menu_reset"))->trigger();
        else
            staged.app->preferencesWindow().resetButton->click();
        QCOMPARE(staged.defaults.value(keys::Videodriver.name), QVariant(0));
        QCOMPARE(staged.desktop.transcript(), QStringList{QStringLiteral("alert reset_Message")});
        // Escape presses the last button.
        const Alert& alert = staged.desktop.alerts.back();
        QCOMPARE(alert.buttons, (QStringList{QStringLiteral("reset_reset"), QStringLiteral("reset_cancel")}));
        QVERIFY(!alert.escape);
    }

    void theWheelOverAPreferenceChangesNothing()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->showPrefsWindow();
        int popups = 0;
        for (QComboBox* popup : staged.app->preferencesWindow().findChildren<QComboBox*>()) {
            if (popup->count() < 2 || popup->hasFocus())
                continue;
            ++popups;
            const int before = popup->currentIndex();
            for (const int angle : {-120, 120}) {
                QWheelEvent wheel(QPointF(4, 4), popup->mapToGlobal(QPointF(4, 4)), QPoint(),
                                  QPoint(0, angle), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
                QSpontaneKeyEvent::setSpontaneous(&wheel);
                qApp->notify(popup, &wheel);
                QVERIFY2(popup->currentIndex() == before, qPrintable(popup->objectName()));
            }
        }
        QVERIFY(popups > 10);
    }

    void escapeClosesTheOtherWindows()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->showPrefsWindow();
        staged.app->showLogWindow();
        for (QWidget* window : {static_cast<QWidget*>(&staged.app->preferencesWindow()),
                                static_cast<QWidget*>(&staged.app->logWindow())}) {
            window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(window));
            QTest::keyClick(window, Qt::Key_Escape);
            QVERIFY(!window->isVisible());
        }
        QVERIFY(staged.app->mainWindow().isVisible());
    }

    void everyMenuCommandHasAName_data() { addLanguages(); }

    void everyMenuCommandHasAName()
    {
        QFETCH(QString, language);
        const test::InstalledTexts texts(language);
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        int commands = 0;
        for (const QAction* menu : staged.app->mainWindow().menuBar()->actions())
            checkNames(*menu, commands);
        QVERIFY(commands > 15);
    }

    void shortcutsAreNotGivenTwice()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        QSet<QKeySequence> seen;
        for (const QAction* action : staged.app->mainWindow().menuBar()->findChildren<QAction*>()) {
            for (const QKeySequence& shortcut : action->shortcuts()) {
                QVERIFY2(!seen.contains(shortcut), qPrintable(action->text()));
                seen.insert(shortcut);
            }
        }
    }

    void theKeysOfTheViewMenuChangeTheText_data()
    {
        QTest::addColumn<Qt::Key>("key");
        QTest::addColumn<double>("size");
        QTest::newRow("plus") << Qt::Key_Plus << 14.0;
        QTest::newRow("the same key without Shift") << Qt::Key_Equal << 14.0;
        QTest::newRow("minus") << Qt::Key_Minus << 12.0;
    }

    void theKeysOfTheViewMenuChangeTheText()
    {
        QFETCH(Qt::Key, key);
        QFETCH(double, size);
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->mainWindow().activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&staged.app->mainWindow()));
        QTest::keyClick(staged.app->mainWindow().gameTable, key, Qt::ControlModifier);
        QCOMPARE(staged.defaults.value(keys::fontSize.name), QVariant(size));
        QCOMPARE(staged.defaults.value(keys::rowHeight.name), QVariant(size * 1.5));
    }

    void theViewMenuOpensTheFontPanel()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        const auto panelIsShown = [] {
            return std::ranges::any_of(QApplication::topLevelWidgets(), [](const QWidget* window) {
                return qobject_cast<const FontPanel*>(window) != nullptr && window->isVisible();
            });
        };
        QVERIFY(!panelIsShown());
        staged.app->findMenuItemNamed(QStringLiteral("menu_font"))->trigger();
        QVERIFY(panelIsShown());
    }

    void menuItemsAreFoundByTheirTitle()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        for (const char* title : {"menu_file", "menu_view", "menu_bigger", "menu_quit", "menu_logfront"}) {
            const QAction* found = staged.app->findMenuItemNamed(QLatin1String(title));
            QVERIFY2(found != nullptr, title);
            QCOMPARE(found->text(), QLatin1String(title));
        }
        QCOMPARE(staged.app->findMenuItemNamed(QStringLiteral("menu_nowhere")), nullptr);
        const test::InstalledTexts texts(QStringLiteral("en"));
        StagedApp english;
        english.writeCatalogue();
        english.start();
        QCOMPARE(english.app->findMenuItemNamed(QStringLiteral("Open Recent"))->text(),
                 QStringLiteral("Open &Recent"));
    }

    void thePreferencesHaveTheirPagesInOrder()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->showPrefsWindow();
        QStringList pages;
        for (const QToolButton* button : staged.app->preferencesWindow().findChildren<QToolButton*>()) {
            if (button->property("role") == QStringLiteral("page"))
                pages << button->text();
        }
        QCOMPARE(pages, QStringLiteral("general video effect av ioport misc support appearance").split(u' '));
        const auto* tabs = staged.app->preferencesWindow().findChild<QStackedWidget*>();
        for (const QString& page : pages)
            QCOMPARE(tabs->findChildren<QScrollArea*>(page, Qt::FindDirectChildrenOnly).size(), 1);
        QCOMPARE(tabs->currentWidget()->objectName(), QStringLiteral("general"));
        QVERIFY(staged.app->preferencesWindow().findChild<AppearancePage*>() != nullptr);
    }

    void thePreferencesNeverBeginAtTheResetButton()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->showPrefsWindow();
        const PreferencesWindow& preferences = staged.app->preferencesWindow();
        QVERIFY(preferences.focusWidget() != nullptr);
        QVERIFY(preferences.focusWidget() != preferences.resetButton);
    }

    // By name, so that a control that gets another one is noticed.
    void theFocusRingsOfTheirControlsAreOff()
    {
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->gameList().selectRow(0);
        staged.app->addFavorite();
        staged.app->showPrefsWindow();
        staged.app->editing().editRecord();
        staged.app->info().window();
        staged.app->windowMini();
        staged.app->windowFavorites();
        staged.app->favorites().editing().editRecord();
        staged.app->windowMain();
        const QStringList without{"editAdd", "historyUpdate", "buttonviso", "buttonvisr", "buttonvsdown"};
        for (const QLatin1StringView name : DeletionFocusRing::controls) {
            QWidgetList found;
            for (const QWidget* window : QApplication::topLevelWidgets())
                found += window->findChildren<QWidget*>(name);
            QCOMPARE(found.isEmpty(), without.contains(name));
            for (const QWidget* control : found) {
                QVERIFY2(control->focusPolicy() & Qt::TabFocus, name.data());
                QTRY_COMPARE(control->property("focusring").toString(), QStringLiteral("none"));
            }
        }
    }

    void pagesThatWereNeverSeenGoWithTheWindow()
    {
        const auto pages = [] {
            return std::ranges::count_if(QApplication::allWidgets(), [](const QWidget* widget) {
                return qobject_cast<const FormPage*>(widget) != nullptr;
            });
        };
        const auto before = pages();
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        // A start makes none of them.
        QCOMPARE(pages() - before, 0);
        // Those of the utility window are made with it.
        staged.app->utility();
        QCOMPARE(pages() - before, 6);
        staged.app->program().pages.all();
        QCOMPARE(pages() - before, 6 + 6);
        staged.app.reset();
        QCOMPARE(pages(), before);
    }

    void everyControlHasAnAccessibleName_data() { addLanguages(); }

    void everyControlHasAnAccessibleName()
    {
        QFETCH(QString, language);
        const test::InstalledTexts texts(language);
        StagedApp staged;
        staged.writeCatalogue();
        staged.start();
        staged.app->showPrefsWindow();
        staged.app->showLogWindow();
        staged.app->utilityOrderFront();
        for (QWidget* window : {static_cast<QWidget*>(&staged.app->mainWindow()),
                                static_cast<QWidget*>(&staged.app->preferencesWindow()),
                                static_cast<QWidget*>(&staged.app->logWindow()),
                                static_cast<QWidget*>(&staged.app->utility().utilityWindow())}) {
            QVERIFY2(isText(window->windowTitle()), qPrintable(window->objectName()));
            int controls = 0;
            for (const QWidget* control : window->findChildren<QWidget*>()) {
                if (control->window() != window || !isControl(*control))
                    continue;
                ++controls;
                QVERIFY2(isText(accessibleName(*control)), qPrintable(described(*control)));
                QVERIFY2(isNamedAsItReads(*control), qPrintable(described(*control)));
            }
            QVERIFY2(controls > 1, qPrintable(window->objectName()));
        }
    }
};

TESSERA_TEST(AppDelegateTest);
#include "appdelegatetest.moc"
