#include "stagedfinding.h"

#include "catalogue/catalogue.h"
#include "support/testmain.h"

#include <QAbstractItemView>
#include <QPushButton>
#include <QToolButton>

using namespace tessera;
using namespace tessera::test;

/// Makers are offered where one is typed.
class MakerCompletionTest : public StagedFinding
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        stage();
        field()->setFocus();
    }
    void cleanup() { m_staged.reset(); }

    void makersAreOfferedBehindTheirKey_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("makers");
        const QString every = QStringLiteral("Konami|Midway|Namco|Prológica|SNK|Tai To");
        QTest::addRow("the key alone") << QStringLiteral("maker:") << every;
        QTest::addRow("begun") << QStringLiteral("pac maker:na") << QStringLiteral("Namco");
        QTest::addRow("negated") << QStringLiteral("pac -maker:NA") << QStringLiteral("Namco");
        QTest::addRow("quoted") << QStringLiteral("maker:\"tai t") << QStringLiteral("Tai To");
        QTest::addRow("in Japanese quotation marks")
            << QStringLiteral("maker:「tai t") << QStringLiteral("Tai To");
        QTest::addRow("in full width") << QStringLiteral("ｍａｋｅｒ：ｎａ") << QStringLiteral("Namco");
        QTest::addRow("without accents") << QStringLiteral("maker:prolo") << QStringLiteral("Prológica");
        QTest::addRow("nothing fits") << QStringLiteral("maker:xx") << QString();
        QTest::addRow("written already") << QStringLiteral("maker:Namco") << QString();
        QTest::addRow("closed") << QStringLiteral("maker:\"na\"") << QString();
        QTest::addRow("closed in Japanese") << QStringLiteral("maker:「na」") << QString();
        QTest::addRow("behind it") << QStringLiteral("maker:na pa") << QString();
        QTest::addRow("another key") << QStringLiteral("device:na") << QString();
        QTest::addRow("a word") << QStringLiteral("na") << QString();
    }
    void makersAreOfferedBehindTheirKey()
    {
        QFETCH(QString, typed);
        haveAMakerWithABlank();
        // No keyboard of a test has letters in full width.
        QInputMethodEvent entered;
        entered.setCommitString(typed);
        QCoreApplication::sendEvent(field(), &entered);
        QTEST(offered(), "makers");
        QCOMPARE(field()->text(), typed);
    }

    void aChosenMakerIsWrittenBehindItsKey_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("written");
        QTest::addRow("one word") << QStringLiteral("pac maker:na") << QStringLiteral("pac maker:Namco ");
        QTest::addRow("negated") << QStringLiteral("-maker:na") << QStringLiteral("-maker:Namco ");
        QTest::addRow("with a blank") << QStringLiteral("maker:ta") << QStringLiteral("maker:\"Tai To\" ");
        QTest::addRow("quoted") << QStringLiteral("maker:\"ta") << QStringLiteral("maker:\"Tai To\" ");
        QTest::addRow("quoted word") << QStringLiteral("maker:\"na") << QStringLiteral("maker:Namco ");
    }
    void aChosenMakerIsWrittenBehindItsKey()
    {
        QFETCH(QString, typed);
        haveAMakerWithABlank();
        QTest::keyClicks(field(), typed);
        QTest::keyClick(popup(), Qt::Key_Down);
        QTest::keyClick(popup(), Qt::Key_Return);
        QTEST(field()->text(), "written");
        QVERIFY(!isOpen());
        QVERIFY(!window().stopButton->isEnabled());
        // It goes on as it was typed.
        QTest::keyClicks(field(), QStringLiteral("x"));
        QVERIFY(field()->text().endsWith(u" x"));
    }

    void aClickChoosesToo()
    {
        QTest::keyClicks(field(), QStringLiteral("maker:na"));
        const QRect row = popup()->visualRect(popup()->model()->index(0, 0));
        QTest::mouseClick(popup()->viewport(), Qt::LeftButton, Qt::NoModifier, row.center());
        QCOMPARE(field()->text(), QStringLiteral("maker:Namco "));
    }

    void whatStandsBehindIsKept()
    {
        search(QStringLiteral("maker: man"));
        field()->setCursorPosition(6);
        QTest::keyClicks(field(), QStringLiteral("na"));
        QTest::keyClick(popup(), Qt::Key_Down);
        QTest::keyClick(popup(), Qt::Key_Return);
        QCOMPARE(field()->text().simplified(), QStringLiteral("maker:Namco man"));
        QCOMPARE(shown(), QStringLiteral("puckman"));
    }

    void escapeClosesTheOfferFirst()
    {
        QTest::keyClicks(field(), QStringLiteral("maker:na"));
        QVERIFY(isOpen());
        QTest::keyClick(popup(), Qt::Key_Escape);
        QVERIFY(!isOpen());
        QCOMPARE(field()->text(), QStringLiteral("maker:na"));
        QTest::keyClick(field(), Qt::Key_Escape);
        QCOMPARE(field()->text(), QString());
    }

    void returnWithoutAChoiceStartsTheBest()
    {
        QTest::keyClicks(field(), QStringLiteral("puck maker:na"));
        QVERIFY(isOpen());
        QTest::keyClick(popup(), Qt::Key_Return);
        QCOMPARE(field()->text(), QStringLiteral("puck maker:na"));
        QVERIFY(!isOpen());
        QTRY_VERIFY(window().stopButton->isEnabled());
        m_staged->app->stopGame();
        QTRY_VERIFY(!window().stopButton->isEnabled());
    }

    void aCompositionIsLeftAlone()
    {
        QTest::keyClicks(field(), QStringLiteral("maker:n"));
        QVERIFY(isOpen());
        QInputMethodEvent composing(QStringLiteral("あ"), {});
        QCoreApplication::sendEvent(field(), &composing);
        QVERIFY(!isOpen());
        QInputMethodEvent committed;
        committed.setCommitString(QStringLiteral("ａ"));
        QCoreApplication::sendEvent(field(), &committed);
        QCOMPARE(offered(), QStringLiteral("Namco"));
    }

    void theFilterPanelOffersThemToo()
    {
        panel().show();
        panel().activateWindow();
        QLineEdit* maker = panel().filterTextView;
        QTRY_VERIFY(panel().isActiveWindow());
        maker->setFocus();
        QTest::keyClicks(maker, QStringLiteral("k"));
        QVERIFY(panelPopup()->isVisible());
        // The panel stays open.
        QTest::keyClick(panelPopup(), Qt::Key_Escape);
        QVERIFY(!panelPopup()->isVisible());
        QVERIFY(panel().isVisible());
        QTest::keyClicks(maker, QStringLiteral("o"));
        QTest::keyClick(panelPopup(), Qt::Key_Down);
        QTest::keyClick(panelPopup(), Qt::Key_Return);
        QCOMPARE(maker->text(), QStringLiteral("Konami"));
        // Nothing is filtered before it is asked for.
        QCOMPARE(shown(), all);
        QTest::mouseClick(panel().makerButton, Qt::LeftButton);
        QCOMPARE(shown(), QStringLiteral("gradius gradius3 nemesis"));
    }

    void returnInTheFilterPanelTakesWhatWasTyped()
    {
        panel().show();
        panel().activateWindow();
        QTRY_VERIFY(panel().isActiveWindow());
        panel().filterTextView->setFocus();
        QTest::keyClicks(panel().filterTextView, QStringLiteral("SN"));
        QVERIFY(panelPopup()->isVisible());
        QTest::keyClick(panelPopup(), Qt::Key_Return);
        QCOMPARE(panel().filterTextView->text(), QStringLiteral("SN"));
        QCOMPARE(shown(), QString());
    }

private:
    // Edits are followed.
    void haveAMakerWithABlank()
    {
        QTest::keyClicks(field(), QStringLiteral("maker:ta"));
        QCOMPARE(offered(), QString());
        field()->clear();
        Catalogue& catalogue = m_staged->app->catalogue();
        const auto records = catalogue.records();
        for (std::uint32_t record = 0; record < records.size(); ++record) {
            if (records[record][Field::Name] == "cdr")
                return catalogue.setValue(record, Field::Maker, QStringLiteral("Tai To"));
        }
    }

    static QAbstractItemView* openPopup(const QLineEdit* field)
    {
        for (QWidget* each : QApplication::topLevelWidgets()) {
            if (each->objectName() == QStringLiteral("makerPopup") && each->focusProxy() == field)
                return qobject_cast<QAbstractItemView*>(each);
        }
        return nullptr;
    }
    QAbstractItemView* popup() const { return openPopup(field()); }
    QAbstractItemView* panelPopup() const { return openPopup(panel().filterTextView); }
    bool isOpen() const { return popup()->isVisible(); }

    QString offered() const
    {
        QStringList makers;
        for (int row = 0; isOpen() && row < popup()->model()->rowCount(); ++row)
            makers << popup()->model()->index(row, 0).data().toString();
        return makers.join(u'|');
    }
};

TESSERA_TEST(MakerCompletionTest);
#include "makercompletiontest.moc"
