#include "catalogue/ui/rowcolors.h"

#include "stagedpage.h"
#include "support/testmain.h"
#include "widgets/colorwell.h"

#include <QCheckBox>
#include <QToolButton>

using namespace tessera;
using test::StagedPage;

namespace {

struct Well {
    ColorWell* AppearancePage::* well;
    QToolButton* AppearancePage::* initialButton;
    const Key<QLatin1StringView>* key;
    const char* titleKey;
};

const std::array wells{
    Well{&AppearancePage::textColorWell, &AppearancePage::initialColorButton, &keys::TableViewTextColor,
         "appearance_color"},
    Well{&AppearancePage::textColorWell2, &AppearancePage::initialColorButton2, &keys::TableViewTextColor2,
         "appearance_color2"},
};

} // namespace

class RowColorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void switchingTheColouringIsHeard()
    {
        StagedPage at;
        QVERIFY(!at.page.coloringBox->isChecked());
        at.page.coloringBox->click();
        QCOMPARE(at.desktop.takeTranscript(), QStringList{QStringLiteral("sound Pop")});
        QVERIFY(at.defaults.flag(keys::GamelistColoring.name));
        QTest::keyClick(at.page.coloringBox, Qt::Key_Space);
        QCOMPARE(at.desktop.takeTranscript(), QStringList{QStringLiteral("sound Pop")});
        QVERIFY(!at.defaults.flag(keys::GamelistColoring.name));
    }

    void theOtherKeyIsNotTouched()
    {
        StagedPage at;
        at.page.coloringBox->click();
        QVERIFY(!at.defaults.value(keys::gamelist_coloring.name));
        at.controller.setFlag(keys::gamelist_coloring, true);
        at.page.coloringBox->click();
        QVERIFY(!at.page.coloringBox->isChecked());
        QVERIFY(at.controller.flag(keys::gamelist_coloring));
    }

    void aResetLeavesTheColouringAlone()
    {
        StagedPage at;
        at.page.coloringBox->click();
        at.controller.revertToInitialValues();
        QVERIFY(at.page.coloringBox->isChecked());
        QVERIFY(at.defaults.flag(keys::GamelistColoring.name));
        QVERIFY(!at.controller.flag(keys::gamelist_coloring));
        QCOMPARE(at.desktop.transcript(), QStringList{QStringLiteral("sound Pop")});
    }

    void aWellStoresWhatIsChosen_data()
    {
        QTest::addColumn<int>("which");
        QTest::addColumn<QString>("initial");
        QTest::newRow("first") << 0 << "#ffe6e6e6";
        QTest::newRow("second") << 1 << "#80e6e6e6";
    }

    void aWellStoresWhatIsChosen()
    {
        QFETCH(int, which);
        QFETCH(QString, initial);
        const Well& row = wells[static_cast<std::size_t>(which)];
        const Well& other = wells[static_cast<std::size_t>(1 - which)];
        StagedPage at;
        ColorWell* well = at.page.*row.well;
        QToolButton* initialButton = at.page.*row.initialButton;
        QCOMPARE(well->color().name(QColor::HexArgb), initial);
        QVERIFY(!initialButton->isEnabled());

        at.desktop.answerColor(initial, QStringLiteral("#40102030"));
        well->click();
        QCOMPARE(at.desktop.colorRequests.back().title, QLatin1String(row.titleKey));
        QCOMPARE(at.defaults.string(row.key->name), QStringLiteral("#40102030"));
        QCOMPARE(well->color(), QColor(0x10, 0x20, 0x30, 0x40));
        QVERIFY(!at.defaults.value(other.key->name));

        // The next panel begins with what was chosen; cancelled, it changes nothing.
        at.desktop.answerColor(QStringLiteral("#40102030"), std::nullopt);
        well->click();
        QCOMPARE(at.defaults.string(row.key->name), QStringLiteral("#40102030"));

        QVERIFY(initialButton->isEnabled());
        initialButton->click();
        QCOMPARE(at.defaults.string(row.key->name), initial);
        QCOMPARE(well->color().name(QColor::HexArgb), initial);
        QVERIFY(!initialButton->isEnabled());
    }

    void withoutARomFolderEveryRowHasTheSecondColour()
    {
        StagedPage at;
        at.desktop.answerColor(QString(), QStringLiteral("#ff00ff00"));
        at.page.textColorWell2->click();
        const ColorTransformer colors(at.defaults);
        QCOMPARE(colors.transformedValue(QStringLiteral("pong")), QColor::fromRgba(0xffe6e6e6));
        at.page.coloringBox->click();
        for (const char* name : {"pong", "qix", "1943"})
            QCOMPARE(colors.transformedValue(QLatin1String(name)), QColor(0, 255, 0));
    }

    void aBrokenColourIsShownAsTheListShowsIt()
    {
        StagedPage at;
        at.controller.setText(keys::TableViewTextColor, QStringLiteral("bplist00"));
        at.controller.setText(keys::TableViewTextColor2, QStringLiteral("#4010"));
        QCOMPARE(at.page.textColorWell->color(), QColor::fromRgba(0xffe6e6e6));
        QCOMPARE(at.page.textColorWell2->color(), QColor::fromRgba(0x80e6e6e6));
    }

    void aResetBringsTheInitialColoursBack()
    {
        StagedPage at;
        at.controller.setText(keys::TableViewTextColor, QStringLiteral("#ff000001"));
        at.controller.setText(keys::TableViewTextColor2, QStringLiteral("#ff000002"));
        at.controller.revertToInitialValues();
        QCOMPARE(at.page.textColorWell->color(), QColor::fromRgba(0xffe6e6e6));
        QCOMPARE(at.page.textColorWell2->color(), QColor::fromRgba(0x80e6e6e6));
    }
};

TESSERA_TEST(RowColorsTest);
#include "rowcolorstest.moc"
