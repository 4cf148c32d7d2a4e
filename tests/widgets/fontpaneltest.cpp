#include "widgets/fontpanel.h"

#include "support/testmain.h"
#include "widgets/fontname.h"

#include <QAccessible>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QSignalSpy>
#include <QSpinBox>

using namespace tessera;

namespace {

QStringList shown(const QListView* list)
{
    QStringList texts;
    for (int row = 0; row < list->model()->rowCount(); ++row)
        texts << list->model()->index(row, 0).data().toString();
    return texts;
}

QString chosen(const QListView* list)
{
    return list->currentIndex().data().toString();
}

void click(QListView* list, const QString& text)
{
    const auto row = shown(list).indexOf(text);
    QVERIFY2(row >= 0, qPrintable(text));
    const QModelIndex place = list->model()->index(static_cast<int>(row), 0);
    list->scrollTo(place);
    QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(place).center());
}

} // namespace

class FontPanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_panel = std::make_unique<FontPanel>();
        m_panel->setPanelFont(QFont(QStringLiteral("DejaVu Sans")));
        m_panel->show();
        m_chosen = std::make_unique<QSignalSpy>(m_panel.get(), &FontPanel::fontChosen);
    }

    void aGivenFontIsShownWithoutAWord()
    {
        m_panel->setPanelFont(namedFont(QStringLiteral("DejaVu Serif Bold Italic")));
        QCOMPARE(chosen(m_panel->familyList), QStringLiteral("DejaVu Serif"));
        QCOMPARE(chosen(m_panel->styleList), QStringLiteral("Bold Italic"));
        QCOMPARE(m_chosen->count(), 0);
    }

    void aChoiceIsToldAtOnce()
    {
        click(m_panel->familyList, QStringLiteral("DejaVu Sans Mono"));
        QCOMPARE(m_chosen->count(), 1);
        QCOMPARE(fontName(m_panel->convertFont(QFont())), QStringLiteral("DejaVu Sans Mono"));
        click(m_panel->styleList, QStringLiteral("Bold"));
        QCOMPARE(m_chosen->count(), 2);
        QCOMPARE(fontName(m_panel->convertFont(QFont())), QStringLiteral("DejaVu Sans Mono Bold"));
        QCOMPARE(fontName(m_panel->sampleLabel->font()), QStringLiteral("DejaVu Sans Mono Bold"));
        click(m_panel->styleList, QStringLiteral("Bold"));
        QCOMPARE(m_chosen->count(), 2);
    }

    void theStyleIsKeptWhereTheNewFamilyHasIt()
    {
        m_panel->setPanelFont(namedFont(QStringLiteral("DejaVu Sans Bold")));
        click(m_panel->familyList, QStringLiteral("DejaVu Serif"));
        QCOMPARE(chosen(m_panel->styleList), QStringLiteral("Bold"));
        m_panel->setPanelFont(namedFont(QStringLiteral("Inter Semi Bold")));
        click(m_panel->familyList, QStringLiteral("DejaVu Sans"));
        QVERIFY(QFontDatabase::styles(QStringLiteral("DejaVu Sans")).contains(chosen(m_panel->styleList)));
        QCOMPARE(m_chosen->count(), 2);
    }

    void stylesGoFromThinToBold()
    {
        const QStringList styles = shown(m_panel->styleList);
        QCOMPARE(styles.size(), QFontDatabase::styles(QStringLiteral("DejaVu Sans")).size());
        QVERIFY(styles.indexOf(QStringLiteral("Book")) < styles.indexOf(QStringLiteral("Oblique")));
        QVERIFY(styles.indexOf(QStringLiteral("Oblique")) < styles.indexOf(QStringLiteral("Bold")));
        QVERIFY(styles.indexOf(QStringLiteral("Bold")) < styles.indexOf(QStringLiteral("Bold Oblique")));
    }

    void theFilterLeavesWhatItNames()
    {
        QTest::keyClicks(m_panel->filterField, QStringLiteral("dejavu ser"));
        const QStringList families = shown(m_panel->familyList);
        QVERIFY(families.contains(QStringLiteral("DejaVu Serif")));
        for (const QString& family : families)
            QVERIFY(family.startsWith(QStringLiteral("DejaVu Ser")));
        // The family that was chosen is out of sight, but stays chosen.
        QCOMPARE(m_chosen->count(), 0);
        QCOMPARE(fontName(m_panel->convertFont(QFont())), QStringLiteral("DejaVu Sans"));
        m_panel->filterField->clear();
        QCOMPARE(chosen(m_panel->familyList), QStringLiteral("DejaVu Sans"));
        QCOMPARE(m_chosen->count(), 0);
    }

    void downLeadsFromTheFilterIntoTheList()
    {
        QTest::keyClicks(m_panel->filterField, QStringLiteral("dejavu sans mono"));
        QTest::keyClick(m_panel->filterField, Qt::Key_Down);
        QCOMPARE(m_panel->focusWidget(), m_panel->familyList);
        QCOMPARE(m_chosen->count(), 1);
        QCOMPARE(fontName(m_panel->convertFont(QFont())), QStringLiteral("DejaVu Sans Mono"));
    }

    void comingThroughTheListsChoosesNothing()
    {
        m_panel->filterField->setText(QStringLiteral("Serif"));
        m_panel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
        m_panel->filterField->setFocus();
        for (int i = 0; i < 5; ++i)
            QTest::keyClick(m_panel->focusWidget(), Qt::Key_Tab);
        QCOMPARE(m_chosen->count(), 0);
    }

    void theModesSayWhichControlsThereAre_data()
    {
        QTest::addColumn<FontPanel::Modes>("modes");
        QTest::newRow("all") << FontPanel::Modes(FontPanel::AllModes);
        QTest::newRow("no size") << FontPanel::Modes(FontPanel::FilterMode | FontPanel::FaceMode);
        QTest::newRow("no styles") << FontPanel::Modes(FontPanel::FilterMode | FontPanel::SizeMode);
        QTest::newRow("families only") << FontPanel::Modes();
    }

    void theModesSayWhichControlsThereAre()
    {
        QFETCH(FontPanel::Modes, modes);
        m_panel->setModes(modes);
        m_panel->setPanelFont(namedFont(QStringLiteral("DejaVu Sans Bold")));
        m_panel->sizeField->setValue(31);
        QCOMPARE(m_panel->filterField->isVisible(), modes.testFlag(FontPanel::FilterMode));
        QCOMPARE(m_panel->styleList->isVisible(), modes.testFlag(FontPanel::FaceMode));
        QCOMPARE(m_panel->sizeField->isVisible(), modes.testFlag(FontPanel::SizeMode));
        QVERIFY(m_panel->familyList->isVisible());

        QFont font(QStringLiteral("Inter"));
        font.setPixelSize(17);
        const QFont converted = m_panel->convertFont(font);
        QCOMPARE(converted.family(), QStringLiteral("DejaVu Sans"));
        QCOMPARE(converted.bold(), modes.testFlag(FontPanel::FaceMode));
        QCOMPARE(converted.pixelSize(), modes.testFlag(FontPanel::SizeMode) ? 31 : 17);
    }

    void aSizeInPointsStays()
    {
        m_panel->setModes(FontPanel::FaceMode);
        QCOMPARE(m_panel->convertFont(QFont(QStringLiteral("Inter"), 11)).pointSize(), 11);
    }

    void withoutAChoiceAFontStaysAsItIs()
    {
        const FontPanel fresh;
        const QFont font(QStringLiteral("Inter"), 11, QFont::Bold);
        QCOMPARE(fresh.convertFont(font), font);
    }

    void everyControlHasAName()
    {
        for (QWidget* control :
             {static_cast<QWidget*>(m_panel->filterField), static_cast<QWidget*>(m_panel->familyList),
              static_cast<QWidget*>(m_panel->styleList), static_cast<QWidget*>(m_panel->sizeField)})
            QVERIFY(!QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name).isEmpty());
    }

    void escapeClosesIt()
    {
        m_panel->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_panel.get()));
        QTest::keyClick(m_panel.get(), Qt::Key_Escape);
        QVERIFY(!m_panel->isVisible());
    }

private:
    std::unique_ptr<FontPanel> m_panel;
    std::unique_ptr<QSignalSpy> m_chosen;
};

TESSERA_TEST(FontPanelTest);
#include "fontpaneltest.moc"
