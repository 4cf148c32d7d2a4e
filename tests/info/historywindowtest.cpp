#include "info/ui/historywindow.h"

#include "widgets/logview.h"
#include "support/installedtexts.h"
#include "support/testmain.h"
#include "support/words.h"
#include "widgets/theme.h"

#include <QAction>
#include <QCheckBox>
#include <QPushButton>
#include <QToolButton>

using namespace tessera;

/// The history window by itself.
class HistoryWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void itSaysWhatEverythingIsFor()
    {
        const test::InstalledTexts texts("en");
        const HistoryWindow window;
        QCOMPARE(test::wordsOf(window),
                 (QStringList{
                     "historyWindow: window History and Info",
                     "historyinfoTextView: named History and Info",
                     "historySearchField: hint Set name / named Set name",
                     ": Parent",
                     "filedButton: Filed under ",
                     "findField: hint Find in the text / named Find in the text",
                     "smallerButton: named Smaller text / tip Smaller text",
                     "biggerButton: named Bigger text / tip Bigger text",
                     QString::fromUtf8("historyButton: Choose history.dat…"),
                     QString::fromUtf8("mameinfoButton: Choose mameinfo.dat…"),
                     "followBox: Follow the selection",
                 }));
    }

    void onlyWhatThereIsIsShown()
    {
        HistoryWindow window;
        QVERIFY(!window.filedButton->isVisibleTo(&window));
        QCOMPARE(labelsShown(window), QStringList());
        window.showParent(QStringLiteral("pacman"));
        QCOMPARE(labelsShown(window), (QStringList{"history_parent", "pacman"}));
        window.showFiled(QStringLiteral("puckman"));
        QVERIFY(window.filedButton->isVisibleTo(&window));
        window.showParent(QString());
        window.showFiled(QString());
        QCOMPARE(labelsShown(window), QStringList());
        QVERIFY(!window.filedButton->isVisibleTo(&window));
    }

    void whileFilesAreReadAnEmptyTextSaysSo()
    {
        HistoryWindow window;
        QCOMPARE(window.historyinfoTextView->placeholderText(), QString());
        window.showLoading(true);
        QCOMPARE(window.historyinfoTextView->placeholderText(), QStringLiteral("history_loading"));
        window.showLoading(false);
        QCOMPARE(window.historyinfoTextView->placeholderText(), QString());
    }

    void eachButtonTellsWhereItsFileIs()
    {
        HistoryWindow window;
        window.showPaths(QStringLiteral("/a/history.dat"), QStringLiteral("/b/<b>mameinfo</b>.dat"));
        QCOMPARE(window.historyButton->toolTip(), QStringLiteral("/a/history.dat"));
        QCOMPARE(window.mameinfoButton->toolTip(),
                 QStringLiteral("<qt>/b/&lt;b&gt;mameinfo&lt;/b&gt;.dat</qt>"));
    }

    void itsTextHasTheSizeThatItIsGiven()
    {
        HistoryWindow window;
        window.setFontSize(17);
        QCOMPARE(window.historyinfoTextView->font().pixelSize(), 17);
        QVERIFY(window.findField->font().pixelSize() != 17);
    }

    void namesAreNeverMarkup()
    {
        HistoryWindow window;
        for (const QLabel* each : window.findChildren<QLabel*>())
            QCOMPARE(each->textFormat(), Qt::PlainText);
    }

    // By these the style sheet knows what is how.
    void everyPartHasItsLook()
    {
        const HistoryWindow window;
        const auto roleOf = [](const QWidget* each) { return each->property("role").toString(); };
        QCOMPARE(roleOf(window.historyinfoTextView), QStringLiteral("reading"));
        QCOMPARE(roleOf(window.parentTextField), QStringLiteral("dim"));
        QCOMPARE(roleOf(window.findCount), QStringLiteral("faint"));
        for (const QWidget* each : {window.filedButton, window.historyButton, window.mameinfoButton})
            QCOMPARE(roleOf(each), QStringLiteral("link"));
        QCOMPARE(roleOf(window.historySearchField->parentWidget()), QStringLiteral("toolbar"));
        QCOMPARE(roleOf(window.followBox->parentWidget()), QStringLiteral("foot"));
        for (const QToolButton* each : {window.smallerButton, window.biggerButton})
            QVERIFY(!each->icon().isNull());
    }

    void aFieldIsClearedByItsButton()
    {
        const HistoryWindow window;
        for (const QLineEdit* each : {window.historySearchField, window.findField}) {
            QVERIFY(each->isClearButtonEnabled());
            // And it has the magnifying glass in front.
            QCOMPARE(each->actions().size(), 1);
            QCOMPARE(each->actions().first()->icon().cacheKey(), theme::icon("search", "faint").cacheKey());
            QVERIFY(!each->actions().first()->icon().isNull());
        }
    }

    void theToolsStandInTheirOrder()
    {
        HistoryWindow window;
        window.showParent(QStringLiteral("pacman"));
        window.showFiled(QStringLiteral("puckman"));
        window.show();
        const QList<QWidget*> tools{window.historySearchField, window.parentTextField, window.filedButton,
                                    window.findCount,          window.findField,       window.smallerButton,
                                    window.biggerButton};
        for (qsizetype i = 1; i < tools.size(); ++i)
            QVERIFY2(leftOf(window, *tools[i - 1]) < leftOf(window, *tools[i]),
                     qPrintable(tools[i]->objectName()));
        QVERIFY(leftOf(window, *window.historyButton) < leftOf(window, *window.mameinfoButton));
        QVERIFY(leftOf(window, *window.mameinfoButton) < leftOf(window, *window.followBox));
        const auto topOf = [&window](const QWidget* each) { return each->mapTo(&window, QPoint()).y(); };
        QVERIFY(topOf(window.findField) < topOf(window.historyinfoTextView));
        QVERIFY(topOf(window.historyinfoTextView) < topOf(window.followBox));
    }

    void escapeClosesIt()
    {
        HistoryWindow window;
        window.show();
        QVERIFY(window.isWindow());
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QTest::keyClick(&window, Qt::Key_Escape);
        QVERIFY(!window.isVisible());
    }

private:
    static int leftOf(const QWidget& window, const QWidget& each)
    {
        return each.mapTo(&window, QPoint()).x();
    }

    static QStringList labelsShown(const HistoryWindow& window)
    {
        QStringList shown;
        for (const QLabel* each : window.findChildren<QLabel*>()) {
            if (each->isVisibleTo(&window) && !each->text().isEmpty())
                shown << each->text();
        }
        return shown;
    }
};

TESSERA_TEST(HistoryWindowTest);
#include "historywindowtest.moc"
