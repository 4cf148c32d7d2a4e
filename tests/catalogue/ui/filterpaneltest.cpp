#include "catalogue/ui/filterpanel.h"
#include "support/testmain.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>

#include <set>

using namespace tessera;

class FilterPanelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_panel = std::make_unique<FilterPanel>();
        m_panel->show();
    }

    void cleanup() { m_panel.reset(); }

    void aRowThatSaysNothingHidesNothing()
    {
        m_panel->addRow();
        QCOMPARE(m_panel->rowCount(), 1);
        QVERIFY(m_panel->rules().isEmpty());
    }

    void aRowIsARule()
    {
        QSignalSpy changed(m_panel.get(), &FilterPanel::rulesChanged);
        QTest::mouseClick(m_panel->addButton, Qt::LeftButton);
        QTest::keyClicks(value(0), QStringLiteral("19"));
        QCOMPARE(changed.count(), 3); // the empty row, and each letter
        const FilterRules rules = m_panel->rules();
        QVERIFY(rules.all);
        QCOMPARE(rules.rules.size(), std::size_t(1));
        QCOMPARE(rules.rules[0].field, Field::Title);
        QCOMPARE(rules.rules[0].comparison, Comparison::Contains);
        QCOMPARE(rules.rules[0].value, QStringLiteral("19"));
    }

    void everyFieldAndComparisonCanBeChosen()
    {
        m_panel->addRow();
        value(0)->setText(QStringLiteral("x"));
        std::set<Field> chosen;
        for (int i = 0; i < popup(0)->count(); ++i) {
            choose(popup(0), i);
            chosen.insert(m_panel->rules().rules[0].field);
        }
        QCOMPARE(chosen.size(), fieldCount);
        for (int i = 0; i < popup(1)->count(); ++i) {
            choose(popup(1), i);
            QCOMPARE(m_panel->rules().rules[0].comparison, comparisons[std::size_t(i)].comparison);
        }
        QCOMPARE(popup(1)->count(), int(comparisons.size()));
    }

    void rowsAreJoinedByAllOrAny()
    {
        choose(m_panel->joinPopup, 1);
        QVERIFY(!m_panel->rules().all);
        choose(m_panel->joinPopup, 0);
        QVERIFY(m_panel->rules().all);
    }

    void oneRowIsRemoved()
    {
        m_panel->addRow();
        m_panel->addRow();
        value(0)->setText(QStringLiteral("first"));
        value(1)->setText(QStringLiteral("second"));
        QTest::mouseClick(m_panel->findChildren<QToolButton*>().constFirst(), Qt::LeftButton);
        QCOMPARE(m_panel->rowCount(), 1);
        QCOMPARE(m_panel->rules().rules.size(), std::size_t(1));
        QCOMPARE(m_panel->rules().rules[0].value, QStringLiteral("second"));
    }

    void clearRemovesAllRows()
    {
        m_panel->addRow();
        value(0)->setText(QStringLiteral("x"));
        m_panel->filterTextView->setText(QStringLiteral("Konami"));
        QTest::mouseClick(m_panel->clearButton, Qt::LeftButton);
        QCOMPARE(m_panel->rowCount(), 0);
        QVERIFY(m_panel->rules().isEmpty());
        QCOMPARE(m_panel->filterTextView->text(), QString());
    }

    void oneMakerIsAskedFor()
    {
        QSignalSpy wanted(m_panel.get(), &FilterPanel::makerWanted);
        QTest::keyClicks(m_panel->filterTextView, QStringLiteral("Konami"));
        QCOMPARE(wanted.count(), 0);
        QTest::keyClick(m_panel->filterTextView, Qt::Key_Return);
        QTest::mouseClick(m_panel->makerButton, Qt::LeftButton);
        m_panel->filterTextView->clear();
        QTest::mouseClick(m_panel->makerButton, Qt::LeftButton);
        QCOMPARE(wanted.count(), 3);
        QCOMPARE(wanted[0][0].toString(), QStringLiteral("Konami"));
        QCOMPARE(wanted[1][0].toString(), QStringLiteral("Konami"));
        QCOMPARE(wanted[2][0].toString(), QString());
    }

    void theMakerCanBeClearedWhileOneIsSet()
    {
        QSignalSpy cleared(m_panel.get(), &FilterPanel::makerCleared);
        QVERIFY(!m_panel->makerClearButton->isEnabled());
        m_panel->showMaker(QString());
        QVERIFY(m_panel->makerClearButton->isEnabled());
        QTest::mouseClick(m_panel->makerClearButton, Qt::LeftButton);
        QCOMPARE(cleared.count(), 1);
        m_panel->showMaker(std::nullopt);
        QVERIFY(!m_panel->makerClearButton->isEnabled());
    }

    void everyControlHasAName()
    {
        m_panel->addRow();
        for (const QWidget* control : m_panel->findChildren<QWidget*>()) {
            if (!control->isVisible() || !(control->focusPolicy() & Qt::TabFocus))
                continue;
            const auto* button = qobject_cast<const QAbstractButton*>(control);
            QVERIFY2(!control->accessibleName().isEmpty() || (button != nullptr && !button->text().isEmpty()),
                     qPrintable(control->objectName()));
        }
    }

private:
    QLineEdit* value(int row) const
    {
        QList<QLineEdit*> fields = m_panel->findChildren<QLineEdit*>();
        fields.removeAll(m_panel->filterTextView);
        return fields[row];
    }

    QComboBox* popup(int place) const
    {
        QList<QComboBox*> popups = m_panel->findChildren<QComboBox*>();
        popups.removeAll(m_panel->joinPopup);
        return popups[place];
    }

    static void choose(QComboBox* popup, int index)
    {
        popup->setCurrentIndex(index);
        Q_EMIT popup->activated(index);
    }

    std::unique_ptr<FilterPanel> m_panel;
};

TESSERA_TEST(FilterPanelTest);
#include "filterpaneltest.moc"
