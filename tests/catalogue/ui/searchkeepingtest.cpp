#include "catalogue/ui/chipbar.h"
#include "catalogue/ui/searchfield.h"
#include "catalogue/ui/searchkeeping.h"
#include "catalogue/ui/searchnamepanel.h"
#include "platform/defaultscontroller.h"
#include "support/testmain.h"

#include <QAbstractButton>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QVBoxLayout>

using namespace tessera;

namespace {

/// The field over the chips, as in the main window.
struct Stage {
    explicit Stage(const QString& settings)
        : stored(settings)
        , defaults(stored)
        , field(new SearchField)
        , bar(new ChipBar)
        , keeping(*field, *bar, defaults)
    {
        auto* layout = new QVBoxLayout(&window);
        layout->addWidget(field);
        layout->addWidget(bar);
        layout->addStretch();
        window.resize(900, 300);
        window.show();
        window.activateWindow();
        QObject::connect(field, &SearchField::searched, &keeping, &SearchKeeping::noteSearch);
    }

    UserDefaults stored;
    DefaultsController defaults;
    QWidget window;
    SearchField* field;
    ChipBar* bar;
    SearchKeeping keeping;
};

} // namespace

/// Searches that are kept by name, and the last ones.
class SearchKeepingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_folder = std::make_unique<QTemporaryDir>();
        stage();
    }

    void cleanup() { m_stage.reset(); }

    void aSearchIsKeptUnderAName()
    {
        QVERIFY(!keepAction()->isEnabled());
        field()->setText(QStringLiteral(" maker:sega  -bootleg "));
        QVERIFY(keepAction()->isEnabled());
        keepAction()->trigger();
        QCOMPARE(panel()->nameField->text(), QStringLiteral("maker:sega -bootleg"));
        QCOMPARE(panel()->nameField->selectedText(), panel()->nameField->text());
        QTest::keyClicks(panel()->nameField, QStringLiteral("Blue hedgehog & co"));
        QTest::keyClick(panel()->nameField, Qt::Key_Return);
        QCOMPARE(chips(), QStringLiteral("[Blue hedgehog & co]"));
        QVERIFY(chip(0)->shortcut().isEmpty());
        // And it is there the next time.
        stage();
        QCOMPARE(chips(), QStringLiteral("Blue hedgehog & co"));
        QTest::mouseClick(chip(0), Qt::LeftButton);
        QCOMPARE(field()->text(), QStringLiteral("maker:sega -bootleg"));
    }

    void nothingIsKeptWithoutAName()
    {
        field()->setText(QStringLiteral("pac"));
        keepAction()->trigger();
        QTest::keyClick(panel()->nameField, Qt::Key_Delete);
        QVERIFY(!panel()->acceptButton->isEnabled());
        QTest::keyClick(panel()->nameField, Qt::Key_Space);
        QTest::keyClick(panel()->nameField, Qt::Key_Return);
        QVERIFY(panel()->isVisible());
        QTest::keyClick(panel()->nameField, Qt::Key_Escape);
        QCOMPARE(chips(), QString());
    }

    void theSameNameReplacesOnceThatIsSaid()
    {
        keep(QStringLiteral("a"), QStringLiteral("pac"));
        field()->setText(QStringLiteral("gradius"));
        keepAction()->trigger();
        QCOMPARE(panel()->acceptButton->text(), QStringLiteral("searchname_keep"));
        QTest::keyClicks(panel()->nameField, QStringLiteral("a"));
        QVERIFY(notice()->isVisible());
        QCOMPARE(panel()->acceptButton->text(), QStringLiteral("searchname_replace"));
        QTest::mouseClick(panel()->acceptButton, Qt::LeftButton);
        QCOMPARE(chips(), QStringLiteral("[a]"));
        QTest::mouseClick(chip(0), Qt::LeftButton);
        QTest::mouseClick(chip(0), Qt::LeftButton);
        QCOMPARE(field()->text(), QStringLiteral("gradius"));
    }

    void aChipIsOnWhileTheFieldHoldsItsSearch()
    {
        keep(QStringLiteral("a"), QStringLiteral("pac man"));
        keep(QStringLiteral("b"), QStringLiteral("qix"));
        QCOMPARE(chips(), QStringLiteral("a [b]"));
        QTest::mouseClick(chip(0), Qt::LeftButton);
        QCOMPARE(chips(), QStringLiteral("[a] b"));
        QTest::keyClicks(field(), QStringLiteral(" "));
        QCOMPARE(chips(), QStringLiteral("[a] b"));
        QTest::keyClicks(field(), QStringLiteral("x"));
        QCOMPARE(chips(), QStringLiteral("a b"));
        QTest::keyClick(chip(1), Qt::Key_Space);
        QCOMPARE(field()->text(), QStringLiteral("qix"));
        QTest::keyClick(chip(1), Qt::Key_Space);
        QCOMPARE(field()->text(), QString());
        QCOMPARE(chips(), QStringLiteral("a b"));
    }

    void theExclusiveChipsStayAsTheyAre()
    {
        keep(QStringLiteral("a"), QStringLiteral("pac"));
        QSignalSpy chosen(m_stage->bar, &ChipBar::chosen);
        auto* working = m_stage->bar->findChild<QAbstractButton*>(QStringLiteral("chip_working"));
        m_stage->bar->setChip(Chip::Working);
        QTest::mouseClick(chip(0), Qt::LeftButton);
        QVERIFY(working->isChecked());
        QCOMPARE(chosen.count(), 0);
    }

    void aChipIsRenamed()
    {
        keep(QStringLiteral("a"), QStringLiteral("pac"));
        keep(QStringLiteral("b"), QStringLiteral("qix"));
        choose(1, QStringLiteral("kept_rename"));
        QCOMPARE(panel()->nameField->text(), QStringLiteral("b"));
        QVERIFY(panel()->acceptButton->isEnabled());
        QTest::keyClicks(panel()->nameField, QStringLiteral("a"));
        QVERIFY(notice()->isVisible());
        QVERIFY(!panel()->acceptButton->isEnabled());
        QTest::keyClick(panel()->nameField, Qt::Key_Return);
        QCOMPARE(chips(), QStringLiteral("a [b]"));
        QTest::keyClicks(panel()->nameField, QStringLiteral("2"));
        QTest::keyClick(panel()->nameField, Qt::Key_Return);
        QCOMPARE(chips(), QStringLiteral("a [a2]"));
    }

    void aChipIsMovedAndKeepsTheFocus()
    {
        for (const char* name : {"a", "b", "c"})
            keep(QLatin1String(name), QLatin1String(name) + QStringLiteral("x"));
        QCOMPARE(enabledCommands(0), QStringLiteral("kept_rename kept_remove kept_right"));
        QCOMPARE(enabledCommands(2), QStringLiteral("kept_rename kept_remove kept_left"));
        choose(0, QStringLiteral("kept_right"));
        QCOMPARE(chips(), QStringLiteral("b a [c]"));
        QVERIFY(chip(1)->hasFocus());
        choose(2, QStringLiteral("kept_left"));
        QCOMPARE(chips(), QStringLiteral("b [c] a"));
    }

    void aRemovedSearchIsAmongTheLastOnes()
    {
        keep(QStringLiteral("a"), QStringLiteral("pac"));
        keep(QStringLiteral("b"), QStringLiteral("qix"));
        field()->clear();
        last()->actions().constLast()->trigger();
        QSignalSpy said(&m_stage->keeping, &SearchKeeping::statusMessage);
        choose(0, QStringLiteral("kept_remove"));
        QCOMPARE(chips(), QStringLiteral("b"));
        QVERIFY(chip(0)->hasFocus());
        QCOMPARE(said.count(), 1);
        QCOMPARE(lastSearches(), QStringLiteral("pac"));
        choose(0, QStringLiteral("kept_remove"));
        QCOMPARE(chips(), QString());
        QVERIFY(!m_stage->stored.value(keys::KeptSearches.name));
    }

    void theKeyboardOpensAChipsMenu()
    {
        keep(QStringLiteral("a"), QStringLiteral("pac"));
        chip(0)->setFocus();
        QTest::keyClick(chip(0), Qt::Key_F10, Qt::ShiftModifier);
        QVERIFY(m_stage->bar->findChild<QMenu*>() != nullptr);
        QVERIFY(m_stage->bar->findChild<QMenu*>()->isVisible());
        delete m_stage->bar->findChild<QMenu*>();
        // The desktop makes this of the menu key.
        QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(5, 5),
                                chip(0)->mapToGlobal(QPoint(5, 5)));
        QCoreApplication::sendEvent(chip(0), &asked);
        QVERIFY(m_stage->bar->findChild<QMenu*>()->isVisible());
    }

    void aLongNameIsShortenedAndToldWhole()
    {
        const QString name(80, u'W');
        keep(name, QStringLiteral("<b>pac</b>"));
        QVERIFY(chip(0)->width() < chip(0)->fontMetrics().horizontalAdvance(name) / 2);
        QVERIFY(chip(0)->toolTip().contains(name));
        QVERIFY(chip(0)->toolTip().contains(QStringLiteral("pac")));
    }

    void aNameIsNoMarkup()
    {
        keep(QStringLiteral("<b>a</b>"), QStringLiteral("<i>pac</i>"));
        QCOMPARE(chip(0)->text(), QStringLiteral("<b>a</b>"));
        const QString tip = chip(0)->toolTip();
        QVERIFY2(!tip.contains(QStringLiteral("<b>")) || !Qt::mightBeRichText(tip), qPrintable(tip));
        QVERIFY2(!tip.contains(QStringLiteral("<i>")) || !Qt::mightBeRichText(tip), qPrintable(tip));
    }

    void theChipsStandBehindTheOthers()
    {
        keep(QStringLiteral("a"), QStringLiteral("pac"));
        keep(QStringLiteral("b"), QStringLiteral("qix"));
        m_stage->window.resize(1600, 300);
        QApplication::sendPostedEvents();
        const auto* favourites = m_stage->bar->findChild<QAbstractButton*>(QStringLiteral("chip_favorites"));
        const auto* families = m_stage->bar->findChild<QWidget*>(QStringLiteral("familiesBox"));
        const int step = chip(1)->x() - chip(0)->geometry().right();
        QVERIFY(chip(0)->x() - favourites->geometry().right() > step);
        QVERIFY(families->x() > chip(1)->geometry().right());
        // Wherever they wrap nothing is indented.
        for (int width = 300; width < 1600; width += 37) {
            m_stage->window.resize(width, 400);
            QApplication::sendPostedEvents();
            int left = width;
            for (const QAbstractButton* each : m_stage->bar->findChildren<QAbstractButton*>()) {
                if (each != families && each->y() == chip(0)->y())
                    left = std::min(left, each->x());
            }
            QVERIFY2(left == m_stage->bar->findChild<QAbstractButton*>(QStringLiteral("chip_all"))->x(),
                     qPrintable(QString::number(width)));
        }
    }

    void settingsOfAnotherKindAreNoSearches_data()
    {
        QTest::addColumn<QVariant>("stored");
        QTest::addColumn<QString>("shown");
        const QVariantMap good{{QStringLiteral("name"), QStringLiteral("a")},
                               {QStringLiteral("query"), QStringLiteral("pac")}};
        const QVariantMap nameless{{QStringLiteral("query"), QStringLiteral("pac")}};
        const QVariantMap numbers{{QStringLiteral("name"), 3}, {QStringLiteral("query"), QVariantList{4}}};
        QTest::addRow("text") << QVariant(QStringLiteral("a")) << QString();
        QTest::addRow("texts") << QVariant(QStringList{QStringLiteral("a"), QStringLiteral("b")})
                               << QString();
        QTest::addRow("number") << QVariant(3.5) << QString();
        QTest::addRow("dictionary") << QVariant(good) << QString();
        QTest::addRow("some") << QVariant(QVariantList{1, nameless, good, numbers, good})
                              << QStringLiteral("a");
    }
    void settingsOfAnotherKindAreNoSearches()
    {
        QFETCH(QVariant, stored);
        m_stage->stored.setValue(keys::KeptSearches.name, stored);
        m_stage->stored.setValue(keys::LastSearches.name, QVariantMap{{QStringLiteral("x"), 1}});
        m_stage->stored.setValue(keys::RomsPath.name, QStringLiteral("/roms"));
        stage();
        QTEST(chips(), "shown");
        QCOMPARE(lastSearches(), QString());
        keep(QStringLiteral("b"), QStringLiteral("qix"));
        stage();
        QVERIFY(chips().endsWith(u'b'));
        QCOMPARE(m_stage->stored.string(keys::RomsPath.name), QStringLiteral("/roms"));
    }

    void theLastSearchesAreNewestFirstAndEachOnce()
    {
        for (const char* query : {"pac", "qix", "<b>gradius</b> & co", "pac"}) {
            field()->setText(QLatin1String(query));
            QTest::keyClick(field(), Qt::Key_Return);
        }
        QCOMPARE(lastSearches(), QStringLiteral("pac <b>gradius</b> && co qix"));
        stage();
        QCOMPARE(lastSearches(), QStringLiteral("pac <b>gradius</b> && co qix"));
        for (int i = 0; i < 20; ++i) {
            field()->setText(QString::number(i));
            QTest::keyClick(field(), Qt::Key_Down);
        }
        QCOMPARE(lastSearches(), QStringLiteral("19 18 17 16 15 14 13 12 11 10 9 8"));
    }

    void aSearchOfOneWordIsReadBack()
    {
        field()->setText(QStringLiteral("@pac"));
        QTest::keyClick(field(), Qt::Key_Return);
        stage();
        QCOMPARE(lastSearches(), QStringLiteral("@pac"));
    }

    void aLookIntoAMenuIsNoSearch()
    {
        QTRY_VERIFY(m_stage->window.isActiveWindow());
        field()->setFocus();
        QTest::keyClicks(field(), QStringLiteral("pa"));
        QFocusEvent popup(QEvent::FocusOut, Qt::PopupFocusReason);
        QCoreApplication::sendEvent(field(), &popup);
        QFocusEvent window(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
        QCoreApplication::sendEvent(field(), &window);
        QCOMPARE(lastSearches(), QString());
        field()->setFocus();
        m_stage->bar->findChild<QAbstractButton*>(QStringLiteral("chip_all"))->setFocus();
        QCOMPARE(lastSearches(), QStringLiteral("pa"));
    }

    void oneOfTheLastSearchesIsMadeAgain()
    {
        QTRY_VERIFY(m_stage->window.isActiveWindow());
        for (const char* query : {"pac", "qix"}) {
            field()->setText(QLatin1String(query));
            QTest::keyClick(field(), Qt::Key_Return);
        }
        field()->clear();
        field()->setFocus();
        QVERIFY(!last()->isVisible());
        QSignalSpy left(field(), &SearchField::leftDownwards);
        QTest::keyClick(field(), Qt::Key_Down, Qt::AltModifier);
        QVERIFY(last()->isVisible());
        QCOMPARE(left.count(), 0);
        QTest::keyClick(last(), Qt::Key_Down);
        QTest::keyClick(last(), Qt::Key_Down);
        QTest::keyClick(last(), Qt::Key_Return);
        QCOMPARE(field()->text(), QStringLiteral("pac"));
    }

    void theLastSearchesAreForgotten()
    {
        field()->setText(QStringLiteral("pac"));
        QTest::keyClick(field(), Qt::Key_Return);
        last()->actions().constLast()->trigger();
        QCOMPARE(lastSearches(), QString());
        QCOMPARE(last()->actions().size(), 1);
        QVERIFY(!last()->actions().constFirst()->isEnabled());
        QVERIFY(!m_stage->stored.value(keys::LastSearches.name));
    }

private:
    // The program begins, with the settings of before.
    void stage()
    {
        if (m_stage)
            QVERIFY(m_stage->stored.synchronize());
        m_stage.reset();
        m_stage = std::make_unique<Stage>(m_folder->filePath(QStringLiteral("settings.ini")));
    }

    SearchField* field() const { return m_stage->field; }

    QList<QMenu*> menus() const
    {
        return field()->findChildren<QMenu*>(QString(), Qt::FindDirectChildrenOnly);
    }
    QMenu* last() const { return menus().at(1); }
    QAction* keepAction() const { return menus().constFirst()->actions().constLast(); }

    SearchNamePanel* panel() const
    {
        for (auto* each : m_stage->window.findChildren<SearchNamePanel*>()) {
            if (each->isVisible())
                return each;
        }
        qFatal("no panel is open");
    }
    QLabel* notice() const { return panel()->findChild<QLabel*>(QStringLiteral("searchNameNotice")); }

    void keep(const QString& name, const QString& query)
    {
        field()->setText(query);
        keepAction()->trigger();
        QTest::keyClicks(panel()->nameField, name);
        QTest::mouseClick(panel()->acceptButton, Qt::LeftButton);
        m_stage->window.activateWindow();
        QTRY_VERIFY(m_stage->window.isActiveWindow());
    }

    QAbstractButton* chip(int place) const
    {
        return m_stage->bar->findChild<QAbstractButton*>(QStringLiteral("keptChip_%1").arg(place));
    }

    // Names in their order, those that are on in brackets.
    QString chips() const
    {
        QStringList names;
        for (int place = 0; chip(place) != nullptr; ++place) {
            names << (chip(place)->isChecked() ? QStringLiteral("[%1]").arg(chip(place)->text())
                                               : chip(place)->text());
        }
        return names.join(u' ');
    }

    QMenu* openMenu(int place)
    {
        delete m_stage->bar->findChild<QMenu*>();
        const QPoint at(5, 5);
        QContextMenuEvent asked(QContextMenuEvent::Mouse, at, chip(place)->mapToGlobal(at));
        QCoreApplication::sendEvent(chip(place), &asked);
        return m_stage->bar->findChild<QMenu*>();
    }

    void choose(int place, const QString& command)
    {
        for (QAction* action : openMenu(place)->actions()) {
            if (action->text() == command)
                return action->trigger();
        }
        QFAIL("no such command");
    }

    QString enabledCommands(int place)
    {
        QStringList commands;
        for (const QAction* action : openMenu(place)->actions()) {
            if (action->isEnabled() && !action->isSeparator())
                commands << action->text();
        }
        return commands.join(u' ');
    }

    QString lastSearches() const
    {
        QStringList searches;
        for (const QAction* action : last()->actions()) {
            if (action->isSeparator())
                break;
            if (action->isEnabled())
                searches << action->text();
        }
        return searches.join(u' ');
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    std::unique_ptr<Stage> m_stage;
};

TESSERA_TEST(SearchKeepingTest);
#include "searchkeepingtest.moc"
