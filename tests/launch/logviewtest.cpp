#include "widgets/logview.h"

#include "launch/ui/logwindow.h"
#include "support/testmain.h"

#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QTextBlock>

using namespace tessera;

class LogViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void holdsTextAsItIsAppended()
    {
        LogView view;
        QVERIFY(view.isEmpty());
        view.replace("head\n\n");
        view.append("one", Qt::red);
        view.append("\ntwo\n", Qt::red);
        view.append(QString(), Qt::red);
        view.append(" three ", Qt::red);
        QCOMPARE(view.text(), QStringLiteral("head\n\none\ntwo\n three "));
        view.replace("new\n");
        QCOMPARE(view.text(), QStringLiteral("new\n"));
        view.replace(QString());
        QVERIFY(view.isEmpty());
        QCOMPARE(view.text(), QString());
    }

    void everyCharacterComesBack_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("a progress line") << "\r 10%\r 20%\rdone\n";
        QTest::newRow("line ends of two kinds") << "one\r\ntwo\nthree\r\n\r\n";
        QTest::newRow("line feed first") << "\n\rone\n\r";
        QTest::newRow("many carriage returns") << "\r\r\r\n\n\r";
        QTest::newRow("only one") << "\r";
        QTest::newRow("separators") << QStringLiteral("a\u2028b\u2029\u2029c\u2029\n");
        QTest::newRow("what a document marks its frames with")
            << QString(QChar('a') + QChar(0xFDD0) + QChar(0xFDD1) + QChar('b'));
        QTest::newRow("other odd ones")
            << QString(QStringLiteral("a\u00A0b\tc\fd\ve\u0085\uFFFC\uFEFF") + QChar(0) + QChar('z'));
        QTest::newRow("a long line between") << "\r" + QString(9000, 'x') + "\r" + QString(5000, 'y') + "\n";
    }

    void everyCharacterComesBack()
    {
        QFETCH(QString, text);
        LogView view;
        view.append(text, Qt::white);
        QCOMPARE(view.text(), text);
        QVERIFY(!view.isEmpty());
        // In any pieces, and with nothing left of what stood there before.
        for (const qsizetype odd : {1, 2, 3}) {
            const qsizetype piece = odd + text.size() / 100;
            view.replace(QString());
            for (qsizetype at = 0; at < text.size(); at += piece)
                view.append(text.mid(at, piece), Qt::white);
            QCOMPARE(view.text(), text);
        }
        view.selectAll();
        view.copy();
        QCOMPARE(QApplication::clipboard()->text(), text);
    }

    void bothEndsAreOneLineEnd()
    {
        LogView view;
        view.append("one\r\ntwo\r", Qt::white);
        view.append("\nthree\rfour", Qt::white);
        QCOMPARE(view.document()->blockCount(), 4);
        QCOMPARE(view.document()->lastBlock().text(), QStringLiteral("four"));
    }

    void appendedTextHasItsColour()
    {
        LogView view;
        view.replace("head\n");
        view.append("text", QColor(1, 2, 3));
        QTextCursor cursor(view.document());
        cursor.setPosition(7);
        QCOMPARE(cursor.charFormat().foreground().color(), QColor(1, 2, 3));
        cursor.setPosition(2);
        QVERIFY(cursor.charFormat().foreground().color() != QColor(1, 2, 3));
    }

    void nothingScrolls()
    {
        LogWindow window;
        window.show();
        LogView& view = *window.infomationTextView;
        view.replace("head\n");
        for (int i = 0; i < 500; ++i)
            view.append("line\n", Qt::white);
        QVERIFY(view.verticalScrollBar()->maximum() > 100);
        QCOMPARE(view.verticalScrollBar()->value(), 0);
        view.verticalScrollBar()->setValue(50);
        view.append("more\n", Qt::white);
        QCOMPARE(view.verticalScrollBar()->value(), 50);
    }

    void aReaderCannotChangeIt()
    {
        LogWindow window;
        window.show();
        LogView& view = *window.infomationTextView;
        view.replace("text");
        view.setFocus();
        QTest::keyClicks(&view, "abc");
        QTest::keyClick(&view, Qt::Key_Delete);
        QCOMPARE(view.text(), QStringLiteral("text"));
        QVERIFY(!view.isUndoRedoEnabled());
    }

    void aLongLineIsShownInSeveralButIsOne_data()
    {
        QTest::addColumn<int>("piece");
        QTest::newRow("at once") << 100'000;
        QTest::newRow("in pieces") << 999;
        QTest::newRow("in small pieces") << 101;
    }

    void aLongLineIsShownInSeveralButIsOne()
    {
        QFETCH(int, piece);
        QString whole = QStringLiteral("start\n");
        for (int i = 0; i < 6000; ++i)
            whole += QString::fromUtf8(i % 7 == 0 ? "😀" : "あ");
        whole += QStringLiteral("\nend");
        LogView view;
        for (qsizetype at = 0; at < whole.size(); at += piece)
            view.append(whole.mid(at, piece), Qt::white);
        QCOMPARE(view.text(), whole);
        for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next()) {
            QVERIFY(block.length() <= 4100);
            QVERIFY(block.text().isEmpty() || !block.text().front().isLowSurrogate());
        }
    }

    void copiesALongLineAsOne()
    {
        LogView view;
        const QString whole
            = QStringLiteral("first\n") + QString(9000, QLatin1Char('x')) + QStringLiteral("\nlast");
        view.append(whole, Qt::white);
        view.selectAll();
        view.copy();
        QCOMPARE(QApplication::clipboard()->text(), whole);
        QTextCursor cursor(view.document());
        cursor.setPosition(3);
        cursor.setPosition(6 + 4096 + 1 + 10, QTextCursor::KeepAnchor);
        view.setTextCursor(cursor);
        view.copy();
        QCOMPARE(QApplication::clipboard()->text(), whole.mid(3, 3 + 4096 + 10));
    }
};

TESSERA_TEST(LogViewTest);
#include "logviewtest.moc"
