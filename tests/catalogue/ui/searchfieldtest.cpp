#include "catalogue/search/query.h"
#include "catalogue/search/searchkeys.h"
#include "catalogue/ui/searchfield.h"
#include "support/testmain.h"

#include <QMenu>
#include <QSignalSpy>

using namespace tessera;

class SearchFieldTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_field = std::make_unique<SearchField>();
        m_field->show();
    }

    // The favourites' field, whose searches nobody keeps.
    void lastSearchesAreOfferedWhereTheyAreKept()
    {
        const auto opensMenu = [this] {
            QTest::keyClick(m_field.get(), Qt::Key_Down, Qt::AltModifier);
            const auto menus = m_field->findChildren<QMenu*>();
            return std::ranges::any_of(menus, &QMenu::isVisible);
        };
        const auto signs = m_field->actions().size();
        QVERIFY(!opensMenu());
        m_field->offerSearches();
        QCOMPARE(m_field->actions().size(), signs + 1);
        QVERIFY(opensMenu());
    }

    void cleanup() { m_field.reset(); }

    void theDownArrowLeadsToTheList()
    {
        QSignalSpy left(m_field.get(), &SearchField::leftDownwards);
        QTest::keyClicks(m_field.get(), QStringLiteral("pac"));
        QCOMPARE(left.count(), 0);
        QTest::keyClick(m_field.get(), Qt::Key_Down);
        QCOMPARE(left.count(), 1);
        QCOMPARE(m_field->text(), QStringLiteral("pac"));
    }

    void escapeEmptiesTheField()
    {
        m_field->setText(QStringLiteral("pac"));
        QTest::keyClick(m_field.get(), Qt::Key_Escape);
        QCOMPARE(m_field->text(), QString());
    }

    // Where there is nothing to empty it is for whoever else wants it.
    void escapeInAnEmptyFieldIsPassedOn()
    {
        m_field->setText(QStringLiteral("pac"));
        QKeyEvent first(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(m_field.get(), &first);
        QVERIFY(first.isAccepted());
        QKeyEvent second(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(m_field.get(), &second);
        QVERIFY(!second.isAccepted());
    }

    void theTermsOpenBeneathTheField()
    {
        QVERIFY(menu()->toolTipsVisible());
        for (QAction* action : m_field->actions()) {
            if (action->text() == QStringLiteral("search_terms"))
                action->trigger();
        }
        QVERIFY(menu()->isVisible());
        menu()->hide();
    }

    void aTermTakesTheFocusToTheField()
    {
        m_field->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_field.get()));
        m_field->setText(QStringLiteral("pac"));
        m_field->setCursorPosition(0);
        m_field->clearFocus();
        menu()->actions().constFirst()->trigger();
        QVERIFY(m_field->hasFocus());
        QCOMPARE(m_field->text(), QStringLiteral("pac title:"));
        m_field->clearFocus();
        m_field->beginWith(QStringLiteral("x"));
        QVERIFY(m_field->hasFocus());
        QCOMPARE(m_field->text(), QStringLiteral("pac title:x"));
    }

    void whatWasTypedInTheListGoesOnHere()
    {
        m_field->setText(QStringLiteral("pa"));
        m_field->setCursorPosition(0);
        m_field->beginWith(QStringLiteral("c"));
        QCOMPARE(m_field->text(), QStringLiteral("pac"));
        QCOMPARE(m_field->cursorPosition(), 3);
    }

    void everyTermIsInTheMenu()
    {
        const QList<QAction*> terms = menu()->actions().mid(0, qsizetype(std::size(searchKeys)));
        QCOMPARE(terms.size(), qsizetype(std::size(searchKeys)));
        for (QAction* action : terms)
            QVERIFY(action->text().contains(u":\t"));
    }

    void aTermOfTheMenuIsPutBehindTheText()
    {
        menu()->actions().constFirst()->trigger();
        const QString term = m_field->text();
        QVERIFY(term.endsWith(u':'));
        m_field->setText(QStringLiteral("pac"));
        menu()->actions().constFirst()->trigger();
        QCOMPARE(m_field->text(), QString(QStringLiteral("pac ") + term));
        m_field->setText(QStringLiteral("pac "));
        menu()->actions().constFirst()->trigger();
        QCOMPARE(m_field->text(), QString(QStringLiteral("pac ") + term));
    }

    void wrongTermsAreDrawnOtherwise()
    {
        m_field->clearFocus(); // nor a cursor that blinks
        m_field->resize(300, 40);
        m_field->setText(QStringLiteral("foo:bar pac"));
        m_field->setCursorPosition(0);
        const QImage plain = m_field->grab().toImage();
        m_field->markTerms(Query(m_field->text()));
        QVERIFY(m_field->grab().toImage() != plain);
        QCOMPARE(m_field->text(), QStringLiteral("foo:bar pac"));
        QCOMPARE(m_field->cursorPosition(), 0);
        // Once it is right the marks are gone.
        m_field->markTerms(Query(u"maker:x pac"));
        QCOMPARE(m_field->grab().toImage(), plain);
    }

    void marksLeaveACompositionAlone()
    {
        SearchField plain;
        for (SearchField* field : {m_field.get(), &plain}) {
            field->resize(300, 40);
            field->show();
            field->clearFocus();
        }
        connect(m_field.get(), &QLineEdit::textChanged, this,
                [this](const QString& text) { m_field->markTerms(Query(text)); });
        for (SearchField* field : {m_field.get(), &plain}) {
            QInputMethodEvent event(QStringLiteral("k"), {});
            event.setCommitString(QStringLiteral("か"));
            QCoreApplication::sendEvent(field, &event);
            QCOMPARE(field->text(), QStringLiteral("か"));
        }
        QCOMPARE(m_field->grab().toImage(), plain.grab().toImage());
    }

    void whatIsComposedInTheListGoesOnHere()
    {
        m_field->setText(QStringLiteral("ab"));
        m_field->setCursorPosition(0);
        QInputMethodEvent event;
        event.setCommitString(QStringLiteral("か"));
        m_field->composeOn(&event);
        QCOMPARE(m_field->text(), QStringLiteral("abか"));
    }

private:
    QMenu* menu() const { return m_field->findChild<QMenu*>(QString(), Qt::FindDirectChildrenOnly); }

    std::unique_ptr<SearchField> m_field;
};

TESSERA_TEST(SearchFieldTest);
#include "searchfieldtest.moc"
