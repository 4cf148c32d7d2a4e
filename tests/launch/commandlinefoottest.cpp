#include "launch/ui/commandlinefoot.h"

#include "support/testmain.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QPushButton>
#include <QTextCursor>
#include <QTextBlock>
#include <QTextEdit>
#include <QTextLayout>

using namespace tessera;

class CommandLineFootTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatIsLeftOutIsStruckThroughAtTheEnd()
    {
        CommandLineFoot foot;
        foot.showLine("/my apps/mame", {{"pong", "-window"}, {"-beam 1"}});
        QCOMPARE(foot.text(), QStringLiteral("'/my apps/mame' pong -window"));
        QTextCursor cursor(foot.commandLineText->document());
        cursor.movePosition(QTextCursor::End);
        QVERIFY(cursor.charFormat().fontStrikeOut());
        QCOMPARE(cursor.charFormat().toolTip(), QStringLiteral("commandline_leftout"));
        // Not the blank before it.
        cursor.setPosition(static_cast<int>(foot.commandLineText->toPlainText().indexOf("-\u2060beam")));
        QVERIFY(!cursor.charFormat().fontStrikeOut());
        cursor.setPosition(1);
        QVERIFY(!cursor.charFormat().fontStrikeOut());
        foot.showLine("mame", {{"pong"}, {}});
        QCOMPARE(foot.commandLineText->toPlainText(), QStringLiteral("mame pong"));
    }

    void theButtonCopiesWhatIsStarted()
    {
        CommandLineFoot foot;
        foot.showLine("mame", {{"pong", "-window"}, {"-beam 1"}});
        foot.copyButton->click();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("mame pong -window"));
    }

    void theButtonStandsBesideTheLine()
    {
        CommandLineFoot foot;
        foot.showLine("mame", {{"pong"}, {}});
        foot.resize(600, 60);
        foot.show();
        QVERIFY(QTest::qWaitForWindowExposed(&foot));
        const QRect line = foot.commandLineText->geometry();
        const QRect button = foot.copyButton->geometry();
        QVERIFY(button.left() > line.right() && button.right() < foot.width());
        QVERIFY(line.width() > button.width());
    }

    void aSelectionIsCopiedAsAShellTakesIt()
    {
        CommandLineFoot foot;
        foot.showLine("mame", {{"pong", "-window"}, {"-beam 1"}});
        foot.commandLineText->selectAll();
        foot.commandLineText->copy();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("mame pong -window -beam 1"));
    }

    void aSelectionOutlastsWhatChangesNothing()
    {
        CommandLineFoot foot;
        foot.showLine("mame", {{"pong"}, {"-beam 1"}});
        foot.commandLineText->selectAll();
        foot.showLine("mame", {{"pong"}, {"-beam 1"}});
        QVERIFY(foot.commandLineText->textCursor().hasSelection());
    }

    void wholeLinesAreShown()
    {
        CommandLineFoot foot;
        foot.resize(300, 200);
        foot.show();
        foot.showLine(QStringLiteral("/usr/games/mame"), {QStringList(60, QStringLiteral("-window")), {}});
        const QTextBlock block = foot.commandLineText->document()->firstBlock();
        QVERIFY(block.layout()->lineCount() > 3);
        const double line = block.layout()->lineAt(0).height();
        QCOMPARE(foot.commandLineText->viewport()->height(), qRound(line * 3));
        // A thicker frame takes nothing of them.
        foot.commandLineText->setFrameStyle(QFrame::Box | QFrame::Plain);
        foot.commandLineText->setLineWidth(4);
        QCOMPARE(foot.commandLineText->frameWidth(), 4);
        foot.hide();
        foot.show();
        QCOMPARE(foot.commandLineText->height(), qRound(line * 3) + 8);
        QCOMPARE(foot.commandLineText->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
    }

    // A line is broken between words alone, not behind an option's hyphen.
    void linesAreNotBrokenInsideOptions()
    {
        CommandLineFoot foot;
        foot.showLine("mame", {{"-a-b", "x"}, {"-c 1"}});
        QCOMPARE(foot.commandLineText->toPlainText(), QStringLiteral("mame -\u2060a-\u2060b x -\u2060c 1"));
        QCOMPARE(foot.text(), QStringLiteral("mame -a-b x"));
    }
};

TESSERA_TEST(CommandLineFootTest);
#include "commandlinefoottest.moc"
