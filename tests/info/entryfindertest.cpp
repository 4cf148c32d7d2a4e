#include "info/ui/entryfinder.h"

#include "support/installedtexts.h"
#include "support/testmain.h"
#include "widgets/closekeys.h"
#include "widgets/theme.h"

#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalSpy>

using namespace tessera;

/// Finding within a text.
class EntryFinderTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_text = std::make_unique<QPlainTextEdit>(QStringLiteral("one two ONE\nthree one"));
        m_field = std::make_unique<QLineEdit>();
        m_count = std::make_unique<QLabel>();
        m_finder = std::make_unique<EntryFinder>(*m_text, *m_field, *m_count);
    }

    void cleanup() { m_finder.reset(); }

    void theFirstPlaceIsSelectedWhileItIsTyped()
    {
        QTest::keyClicks(m_field.get(), "on");
        QCOMPARE(places(), (QList<int>{0, 8, 18}));
        QCOMPARE(selected(), 0);
        QCOMPARE(m_text->textCursor().selectedText(), QStringLiteral("on"));
        QTest::keyClick(m_field.get(), Qt::Key_Return);
        QCOMPARE(selected(), 8);
        // Anything else that is typed begins at the first one again.
        QTest::keyClicks(m_field.get(), "e");
        QCOMPARE(selected(), 0);
        QCOMPARE(m_text->textCursor().selectedText(), QStringLiteral("one"));
    }

    void returnGoesRoundAndShiftReturnGoesBack_data()
    {
        QTest::addColumn<int>("key");
        QTest::newRow("return") << int{Qt::Key_Return};
        QTest::newRow("enter") << int{Qt::Key_Enter};
    }

    void returnGoesRoundAndShiftReturnGoesBack()
    {
        QFETCH(int, key);
        m_field->setText(QStringLiteral("one"));
        QList<int> visited{selected()};
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(m_field.get(), static_cast<Qt::Key>(key));
            visited << selected();
        }
        QCOMPARE(visited, (QList<int>{0, 8, 18, 0, 8}));
        visited.clear();
        for (int i = 0; i < 4; ++i) {
            QTest::keyClick(m_field.get(), static_cast<Qt::Key>(key), Qt::ShiftModifier);
            visited << selected();
        }
        QCOMPARE(visited, (QList<int>{0, 18, 8, 0}));
    }

    void itIsSaidWhichOneOfHowManyItIs()
    {
        const test::InstalledTexts texts("en");
        QCOMPARE(m_count->text(), QString());
        m_field->setText(QStringLiteral("one"));
        QCOMPARE(m_count->text(), QStringLiteral("1 of 3"));
        m_finder->findNext();
        m_finder->findNext();
        QCOMPARE(m_count->text(), QStringLiteral("3 of 3"));
        m_finder->findNext();
        QCOMPARE(m_count->text(), QStringLiteral("1 of 3"));
        m_field->setText(QStringLiteral("four"));
        QCOMPARE(m_count->text(), QStringLiteral("Not found"));
        m_field->clear();
        QCOMPARE(m_count->text(), QString());
    }

    void theSelectedPlaceStandsOutFromTheOthers()
    {
        m_field->setText(QStringLiteral("one"));
        m_finder->findNext();
        QCOMPARE(colors(), (QStringList{"text on selection", "onaccent on accent", "text on selection"}));
        m_finder->findPrevious();
        QCOMPARE(colors(), (QStringList{"onaccent on accent", "text on selection", "text on selection"}));
    }

    void inAnotherTextThePlacesAreMarkedAndNoneIsSelected()
    {
        m_field->setText(QStringLiteral("one"));
        m_finder->findNext();
        m_text->setPlainText(QStringLiteral("no one is none"));
        m_finder->mark();
        QCOMPARE(places(), (QList<int>{3, 11}));
        QVERIFY(!m_text->textCursor().hasSelection());
        QCOMPARE(m_count->text(), QStringLiteral("2"));
        for (const QTextEdit::ExtraSelection& mark : m_text->extraSelections())
            QCOMPARE(mark.format.background().color(), theme::color("selection"));
        m_finder->findNext();
        QCOMPARE(selected(), 3);
        // Backwards it begins at the end.
        m_finder->mark();
        m_finder->findPrevious();
        QCOMPARE(selected(), 11);
    }

    void whatIsNotThereIsSaidAndNothingMoves()
    {
        m_field->setText(QStringLiteral("two"));
        QCOMPARE(selected(), 4);
        m_field->setText(QStringLiteral("four"));
        QCOMPARE(m_count->text(), QStringLiteral("history_not_found"));
        QVERIFY(places().isEmpty());
        m_finder->findNext();
        m_finder->findPrevious();
        QCOMPARE(selected(), 4);
    }

    // The window that the field stands in closes at Escape.
    void escapeEmptiesTheFieldBeforeItClosesTheWindow()
    {
        QWidget window;
        auto* field = new QLineEdit(&window);
        const EntryFinder finder(*m_text, *field, *m_count);
        closeByKeyboard(window);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        field->setFocus();
        QTest::keyClicks(field, "one");
        QCOMPARE(m_count->text(), QStringLiteral("history_found_of"));
        QTest::keyClick(field, Qt::Key_Escape);
        QVERIFY(window.isVisible());
        QVERIFY(field->text().isEmpty() && m_count->text().isEmpty());
        QTest::keyClick(field, Qt::Key_Escape);
        QVERIFY(!window.isVisible());
    }

    void returnIsTheFindersAlone()
    {
        QSignalSpy returns(m_field.get(), &QLineEdit::returnPressed);
        QTest::keyClick(m_field.get(), Qt::Key_Return);
        QCOMPARE(returns.size(), 0);
    }

    void aFoundPlaceComesIntoView()
    {
        m_text->setPlainText(QStringLiteral("line\n").repeated(500) + QStringLiteral("here"));
        m_text->resize(200, 100);
        m_text->show();
        m_field->setText(QStringLiteral("here"));
        QVERIFY(m_text->viewport()->rect().contains(m_text->cursorRect()));
        QVERIFY(m_text->verticalScrollBar()->value() > 0);
    }

    void noMoreThanAThousandAreMarked()
    {
        m_text->setPlainText(QStringLiteral("ab ").repeated(1001));
        m_field->setText(QStringLiteral("b"));
        QCOMPARE(places().size(), 1000);
        m_finder->findPrevious();
        QCOMPARE(selected(), 3 * 999 + 1);
        m_finder->findNext();
        QCOMPARE(selected(), 1);
    }

private:
    int selected() const { return m_text->textCursor().selectionStart(); }

    QList<int> places() const
    {
        QList<int> starts;
        for (const QTextEdit::ExtraSelection& mark : m_text->extraSelections())
            starts << mark.cursor.selectionStart();
        return starts;
    }

    /// Of each mark, by the names of the look.
    QStringList colors() const
    {
        const auto nameOf = [](const QColor& color) {
            for (const char* token : {"accent", "onaccent", "selection", "text"}) {
                if (theme::color(token) == color)
                    return QString::fromLatin1(token);
            }
            return color.name();
        };
        QStringList names;
        for (const QTextEdit::ExtraSelection& mark : m_text->extraSelections())
            names << nameOf(mark.format.foreground().color()) + QStringLiteral(" on ")
                    + nameOf(mark.format.background().color());
        return names;
    }

    std::unique_ptr<QPlainTextEdit> m_text;
    std::unique_ptr<QLineEdit> m_field;
    std::unique_ptr<QLabel> m_count;
    std::unique_ptr<EntryFinder> m_finder;
};

TESSERA_TEST(EntryFinderTest);
#include "entryfindertest.moc"
