#include "catalogue/ui/chipbar.h"
#include "catalogue/ui/factspanel.h"
#include "catalogue/ui/filterpanel.h"
#include "catalogue/ui/recordeditor.h"
#include "catalogue/ui/searchfield.h"
#include "stagedpage.h"
#include "stagedtable.h"
#include "support/rows.h"
#include "support/testmain.h"
#include "widgets/colorwell.h"
#include "widgets/myscrollers.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>

using namespace tessera;

namespace {

const GameRecord neogeo{{"bios", "neogeo", "parent", "Neo-Geo", "ネオジオ", "1990", "SNK", "good", "dev"}};

// The labels that are shown, line by line: those that begin at the same height stand in one.
QStringList linesOf(const QWidget& panel)
{
    QMap<std::pair<int, int>, QString> places;
    for (const QLabel* label : panel.findChildren<QLabel*>()) {
        if (!label->isVisibleTo(&panel))
            continue;
        const QPoint at = label->mapTo(&panel, QPoint());
        places[{at.y(), at.x()}] = label->text().isEmpty() ? label->objectName() : label->text();
    }
    QStringList lines;
    int height = -1;
    for (auto place = places.cbegin(); place != places.cend(); ++place) {
        if (place.key().first == height)
            lines.last() += u' ' + place.value();
        else
            lines << place.value();
        height = place.key().first;
    }
    return lines;
}

} // namespace

/// How the panels of the catalogue are laid out.
class PanelLayoutTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theLookPageReadsFromTopToBottom()
    {
        const test::StagedPage at;
        QCOMPARE(
            test::rowsOf(at.page),
            QStringList({"appearance_font: fontSampleField fontButton",
                         "appearance_favoritefont: favoriteFontField favoriteFontButton",
                         "appearance_size: fontSizeField smallerButton biggerButton", "---",
                         "appearance_rows: coloringBox", "appearance_color: textColorWell initialColorButton",
                         "appearance_color2: textColorWell2 initialColorButton2", "appearance_note:"}));
    }

    // What is long has the width of the page; what is short leaves it.
    void onlyTheFontsGrowWithThePage()
    {
        test::StagedPage at;
        at.page.resize(1200, 600);
        at.page.show();
        QVERIFY(at.page.fontSampleField->width() > 500);
        QVERIFY(at.page.favoriteFontField->width() > 500);
        const auto gap = [](const QWidget* left, const QWidget* right) {
            return right->geometry().left() - left->geometry().right();
        };
        QVERIFY(gap(at.page.fontSizeField, at.page.smallerButton) < 20);
        QVERIFY(at.page.biggerButton->geometry().right() < 300);
        for (const auto& [well, button] :
             {std::pair<QWidget*, QWidget*>{at.page.textColorWell, at.page.initialColorButton},
              std::pair<QWidget*, QWidget*>{at.page.textColorWell2, at.page.initialColorButton2}}) {
            QVERIFY(well->width() < 300);
            QVERIFY(gap(well, button) < 20);
        }
    }

    void theFactsStandBeneathTheTitles()
    {
        FactsPanel panel;
        panel.showRecord(&neogeo, 1);
        panel.showHave(Have::Here, &neogeo);
        panel.resize(300, 600);
        panel.show();
        QCOMPARE(linesOf(panel),
                 QStringList({"romMark Neo-Geo", "ネオジオ", "type : BIOS", "fact_name neogeo",
                              "fact_cloneof parent", "fact_maker SNK", "fact_year 1990", "fact_device dev",
                              "fact_status good", "fact_rom have_here"}));
        QMap<QString, QString> roles;
        for (const QLabel* label : panel.findChildren<QLabel*>())
            roles[label->text()] = label->property("role").toString();
        QCOMPARE(roles["Neo-Geo"], QStringLiteral("heading"));
        QCOMPARE(roles["ネオジオ"], QStringLiteral("dim"));
        QCOMPARE(roles["type : BIOS"], QStringLiteral("faint"));
        QCOMPARE(roles["fact_name"], QStringLiteral("faint"));
        QCOMPARE(roles["neogeo"], QString());
        for (const QLabel* label : panel.findChildren<QLabel*>()) {
            if (label->text().startsWith("fact_"))
                QCOMPARE(label->alignment(), Qt::AlignLeft | Qt::AlignTop);
        }
        QCOMPARE(panel.romMark->alignment(), Qt::AlignTop);
    }

    // A long text makes no panel wider.
    void factsAreBrokenIntoLines()
    {
        FactsPanel panel;
        const int width = panel.minimumSizeHint().width();
        const std::string longest(400, 'x');
        const GameRecord record{
            {"game", longest, longest, longest, longest, longest, longest, longest, longest}};
        panel.showRecord(&record, 1);
        QVERIFY(panel.minimumSizeHint().width() <= width + 100);
    }

    void aNewRuleIsTypedAtOnce()
    {
        FilterPanel panel;
        panel.show();
        panel.addRow();
        const auto* value = qobject_cast<const QLineEdit*>(panel.focusWidget());
        QVERIFY(value != nullptr);
        QCOMPARE(value->accessibleName(), QStringLiteral("filter_value"));
        for (const QLabel* label : panel.findChildren<QLabel*>()) {
            if (label->parentWidget() == &panel)
                QVERIFY(label->wordWrap() && label->textFormat() == Qt::PlainText);
        }
        const auto* box = panel.findChild<QScrollArea*>();
        QCOMPARE(box->frameShape(), QFrame::NoFrame);
        QVERIFY(box->widgetResizable());
        QCOMPARE(box->focusPolicy(), Qt::NoFocus);
        QCOMPARE(box->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QVERIFY(panel.findChild<QToolButton*>()->focusPolicy() & Qt::TabFocus);
    }

    void theFilterPanelClosesByKeyboard()
    {
        FilterPanel panel;
        panel.show();
        QVERIFY(QTest::qWaitForWindowActive(&panel));
        QTest::keyClick(&panel, Qt::Key_Escape);
        QVERIFY(!panel.isVisible());
    }

    void anotherJoinIsTold()
    {
        FilterPanel panel;
        int told = 0;
        connect(&panel, &FilterPanel::rulesChanged, this, [&] { ++told; });
        Q_EMIT panel.joinPopup->activated(1);
        QCOMPARE(told, 1);
        panel.addRow();
        QCOMPARE(told, 2);
        for (QComboBox* popup : panel.findChildren<QComboBox*>()) {
            if (popup != panel.joinPopup)
                Q_EMIT popup->activated(0);
        }
        QCOMPARE(told, 4);
        panel.clear();
        QCOMPARE(told, 5);
    }

    void chipsAreAsWideAsTheySay()
    {
        const ChipButton chip(QStringLiteral("label"));
        QCOMPARE(chip.sizePolicy(), QSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed));
        QCOMPARE(chip.focusPolicy(), Qt::StrongFocus);
        QVERIFY(chip.isCheckable());
        QVERIFY(chip.testAttribute(Qt::WA_Hover));
        const ChipBar bar;
        QCOMPARE(bar.property("role").toString(), QStringLiteral("chips"));
        const auto* complaint = bar.findChild<QLabel*>("complaintLabel");
        QVERIFY(complaint->wordWrap());
        QCOMPARE(complaint->property("role").toString(), QStringLiteral("notice"));
    }

    void aChipIsAPill()
    {
        ChipButton chip(QStringLiteral("x"));
        chip.resize(80, 26);
        QImage image(chip.size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        chip.render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
        // Round at the corners, with a border at the sides.
        QCOMPARE(image.pixelColor(0, 0), QColor(Qt::white));
        QCOMPARE(image.pixelColor(79, 25), QColor(Qt::white));
        QVERIFY(image.pixelColor(0, 13) != QColor(Qt::white));
        QVERIFY(image.pixelColor(40, 0) != QColor(Qt::white));
        // What it says is in it, and that it is chosen.
        const auto drawn = [](const QString& label, bool isChosen) {
            ChipButton other(label);
            other.resize(80, 26);
            other.setChecked(isChosen);
            QImage picture(other.size(), QImage::Format_ARGB32_Premultiplied);
            picture.fill(Qt::white);
            other.render(&picture, QPoint(), QRegion(), QWidget::RenderFlags());
            return picture;
        };
        QCOMPARE(drawn("x", false), image);
        QVERIFY(drawn("w", false) != image);
        QVERIFY(drawn("x", true) != image);
        QVERIFY(drawn("x", true).pixelColor(70, 13) != QColor(Qt::white));
    }

    void theEditorBeginsWithItsFirstField()
    {
        RecordEditor editor;
        const std::array records{neogeo};
        editor.show(0, records, true);
        editor.bringForward();
        QVERIFY(editor.isVisible());
        QCOMPARE(editor.focusWidget(), editor.editSetname);
    }

    void theTableScrollsWithBarsOfOurOwn()
    {
        const test::StagedTable at;
        QVERIFY(qobject_cast<const MyScrollers*>(at.table->verticalScrollBar()) != nullptr);
        QVERIFY(qobject_cast<const MyScrollers*>(at.table->horizontalScrollBar()) != nullptr);
    }

    void theSearchFieldHasItsThreeSigns()
    {
        SearchField field;
        field.offerSearches();
        QStringList signs;
        for (const QAction* action : field.actions())
            signs << action->text();
        QCOMPARE(signs,
                 (QStringList{QString(), QStringLiteral("search_terms"), QStringLiteral("search_last")}));
    }
};

TESSERA_TEST(PanelLayoutTest);
#include "panellayouttest.moc"
