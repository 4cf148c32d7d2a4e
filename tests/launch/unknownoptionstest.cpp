#include "launch/ui/unknownoptions.h"

#include "launch/emulatorprofile.h"
#include "launch/ui/optionpage.h"
#include "platform/defaultscontroller.h"
#include "support/argumenttexts.h"
#include "support/launchpage.h"
#include "support/testmain.h"
#include "usagetexts.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTemporaryDir>

using namespace tessera;

namespace {

struct Room {
    QTemporaryDir folder;
    UserDefaults settings{folder.filePath(QStringLiteral("Tessera.ini"))};
    DefaultsController defaults{settings};
    test::StagedPages staged{begun()};
    LaunchPages& pages = staged.pages;

    // The names of the marked controls.
    QStringList marked(const QByteArray& usage)
    {
        const auto profile = EmulatorProfile::fromUsage(usage);
        QStringList names;
        for (OptionPage* page : pages.all()) {
            page->fitTo(profile ? &*profile : nullptr);
            for (const QWidget* control : page->findChildren<QWidget*>()) {
                if (!control->objectName().isEmpty() && control->property("unknown").toBool())
                    names << control->objectName();
            }
        }
        names.sort();
        return names;
    }

private:
    DefaultsController& begun()
    {
        defaults.setInitialValues(QStringLiteral("Sans"), QStringLiteral("/home/me"));
        return defaults;
    }
};

bool isOptionControl(const QWidget* widget)
{
    return qobject_cast<const QComboBox*>(widget) != nullptr
        || qobject_cast<const QLineEdit*>(widget) != nullptr
        || qobject_cast<const QCheckBox*>(widget) != nullptr
        || qobject_cast<const QRadioButton*>(widget) != nullptr;
}

QLabel* labelOf(const QWidget& page, const QWidget* control)
{
    for (QLabel* label : page.findChildren<QLabel*>()) {
        if (label->buddy() == control)
            return label;
    }
    return nullptr;
}

} // namespace

class UnknownOptionsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void withoutAProfileNothingIsMarked()
    {
        Room room;
        QCOMPARE(room.marked("no emulator"), QStringList());
    }

    void anEmulatorThatKnowsAllLeavesAllUnmarked()
    {
        Room room;
        QCOMPARE(room.marked(test::oldUsage()), QStringList());
    }

    void whatANewerEmulatorHasLostIsMarked()
    {
        Room room;
        // The beam has another name there, which is known.
        QCOMPARE(room.marked(test::newUsage()),
                 QStringList({"checkboxAntialias", "checkboxBackdrops", "checkboxBezels",
                              "checkboxMultithread", "checkboxOverlays"}));
        QCOMPARE(room.marked(test::oldUsage()), QStringList());
    }

    void everyControlOfALaunchOptionCanBeMarked()
    {
        Room room;
        const QStringList marked = room.marked("-rompath             path to ROM sets\n");
        const QStringList always{"launchusingPop",  "exeTextField", "romsTextField",
                                 "checkboxRompath", "osxTextField", "appTextField"};
        for (const OptionPage* page : room.pages.all()) {
            for (const QWidget* control : page->findChildren<QWidget*>()) {
                if (isOptionControl(control) && !always.contains(control->objectName()))
                    QVERIFY2(marked.contains(control->objectName()), qPrintable(control->objectName()));
            }
        }
        for (const QString& name : always)
            QVERIFY2(!marked.contains(name), qPrintable(name));
    }

    void aMarkedControlSaysWhyAndCanBeUsed()
    {
        Room room;
        QByteArray usage = test::newUsage();
        usage.replace("-prescale            scale by this amount\n", "");
        room.marked(usage);
        const OptionPage& page = test::pageOf(room.pages, Page::Video);
        for (const QWidget* control : {static_cast<QWidget*>(&page.control<QCheckBox>("checkboxMultithread")),
                                       static_cast<QWidget*>(&page.control<QComboBox>("scalingPop"))}) {
            QCOMPARE(control->toolTip(), QStringLiteral("option_unknown"));
            QCOMPARE(control->accessibleDescription(), QStringLiteral("option_unknown"));
            QVERIFY(control->isEnabled());
        }
        QVERIFY(labelOf(page, &page.control<QComboBox>("scalingPop"))->property("unknown").toBool());
        QVERIFY(!labelOf(page, &page.control<QComboBox>("devicevideoPop"))->property("unknown").toBool());
        room.marked(test::oldUsage());
        QCOMPARE(page.control<QComboBox>("scalingPop").toolTip(), QString());
        QCOMPARE(page.control<QComboBox>("scalingPop").accessibleDescription(), QString());
        QVERIFY(!labelOf(page, &page.control<QComboBox>("scalingPop"))->property("unknown").toBool());
    }

    // The style sheet sees the mark at once, and that it is gone.
    void aMarkIsDrawnAtOnce()
    {
        Room room;
        OptionPage& page = test::pageOf(room.pages, Page::Video);
        page.setStyleSheet("QCheckBox[unknown=\"true\"] { min-width: 321px }");
        page.show();
        room.marked(test::newUsage());
        QCOMPARE(page.control<QCheckBox>("checkboxMultithread").minimumWidth(), 321);
        QVERIFY(page.control<QCheckBox>("checkboxAspect").minimumWidth() != 321);
        room.marked(test::oldUsage());
        QVERIFY(page.control<QCheckBox>("checkboxMultithread").minimumWidth() != 321);
    }

    // Both names of what is missing, where a control sends several; and nothing where one is known.
    void aControlIsMarkedWhereNoneOfItsOptionsIsKnown()
    {
        const test::ArgumentTexts texts;
        Room room;
        QByteArray usage = test::newUsage();
        usage.replace("-flipx               flip left-right\n", "");
        QVERIFY(!room.marked(usage).contains("displayflipPop"));
        usage.replace("-flipy               flip upside-down\n", "");
        QVERIFY(room.marked(usage).contains("displayflipPop"));
        QCOMPARE(test::control<QComboBox>(room.pages, "displayflipPop")->toolTip(),
                 QStringLiteral("option_unknown (-flipx, -flipy, %2)"));
    }

    void aLabelOfSeveralBoxesStaysAsItIs()
    {
        Room room;
        QByteArray usage = test::newUsage();
        usage.replace("-keepaspect          keep the aspect ratio\n", "");
        QVERIFY(room.marked(usage).contains("checkboxAspect"));
        const OptionPage& page = test::pageOf(room.pages, Page::Video);
        QVERIFY(!labelOf(page, &page.control<QCheckBox>("checkboxAspect"))->property("unknown").toBool());
    }
};

TESSERA_TEST(UnknownOptionsTest);
#include "unknownoptionstest.moc"
