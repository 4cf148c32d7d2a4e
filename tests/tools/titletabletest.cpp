#include "tools/titletable.h"

#include "support/testmain.h"

using namespace tessera;

namespace {

QString textOf(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

class TitleTableTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesTwoFieldsOfALine_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("entries"); // joined by "|"
        QTest::newRow("four fields") << QByteArray("puckman\tPUCK\tx\ty\r\npong\tPONG\r\n")
                                     << "puckman|PUCK|pong|PONG";
        QTest::newRow("no line end at the end") << QByteArray("a\tb\nc\td") << "a|b|c|d";
        QTest::newRow("runs of line ends") << QByteArray("\r\n\n\ra\tb\n\n\r\r\nc\td\r") << "a|b|c|d";
        QTest::newRow("one field") << QByteArray("alone\nnext\ttitle\n") << "alone|next|title";
        QTest::newRow("one field and a tab") << QByteArray("alone\t\nnext\ttitle\n") << "alone|next|title";
        QTest::newRow("blanks before a line") << QByteArray(" \t a\tb\n") << "a|b";
        QTest::newRow("blanks before a field") << QByteArray("a\t  \t b\n") << "a|b";
        QTest::newRow("blanks inside and behind") << QByteArray("a  b \tc d  \n") << "a  b |c d  ";
        QTest::newRow("blank lines") << QByteArray(" \n\t\t\n\n") << "";
        QTest::newRow("a comment is a line") << QByteArray("# comment\na\tb\n") << "# comment|a|b";
        QTest::newRow("nothing") << QByteArray() << "";
    }

    void takesTwoFieldsOfALine()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, entries);
        const TitleTable table({file.data(), static_cast<std::size_t>(file.size())});
        QStringList found;
        for (const std::string_view entry : table.entries())
            found << textOf(entry);
        QCOMPARE(found.join('|'), entries);
    }

    void recognisesTheEncoding_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QString>("title");
        QTest::newRow("UTF-8") << QByteArray("pac\t\xE3\x83\x91\xE3\x83\x83\xE3\x82\xAF\n")
                               << QString::fromUtf8("パック");
        QTest::newRow("UTF-8 with a mark")
            << QByteArray("\xEF\xBB\xBFpac\t\xE3\x83\x91\n") << QString::fromUtf8("パ");
        QTest::newRow("a mark and ASCII") << QByteArray("\xEF\xBB\xBFpac\tPac\n") << "Pac";
        QTest::newRow("Shift JIS") << QByteArray("pac\t\x83\x70\x83\x62\x83\x4E\n")
                                   << QString::fromUtf8("パック");
        // Circled one and a Roman two stand in code page 932, not in the narrower Shift JIS.
        QTest::newRow("code page 932") << QByteArray("pac\t\x87\x40\x87\x55\n") << QString::fromUtf8("①Ⅱ");
        QTest::newRow("half-width") << QByteArray("pac\t\xCA\xDF\n") << QString::fromUtf8("ﾊﾟ");
        QTest::newRow("broken") << QByteArray("pac\t\x83\x70\xFF!\n") << QString::fromUtf8("パ\uFFFD!");
        QTest::newRow("ASCII") << QByteArray("pac\t\\~\n") << "\\~";
    }

    void recognisesTheEncoding()
    {
        QFETCH(QByteArray, file);
        QFETCH(QString, title);
        const TitleTable table({file.data(), static_cast<std::size_t>(file.size())});
        const auto found = table.titleOf("pac");
        QVERIFY(found);
        QCOMPARE(textOf(*found), title);
    }

    void findsTheFirstEqualEntryAnywhere_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QString>("title"); // empty for none
        QTest::newRow("a name") << QByteArray("a\tA\nb\tB\n") << QByteArray("b") << "B";
        QTest::newRow("the first of two") << QByteArray("a\tA\na\tB\n") << QByteArray("a") << "A";
        QTest::newRow("at a title's place") << QByteArray("x\ta\nb\tB\n") << QByteArray("a") << "b";
        QTest::newRow("after a line of one field") << QByteArray("a\nb\tB\n") << QByteArray("a") << "b";
        QTest::newRow("the last entry") << QByteArray("a\tA\nb\n") << QByteArray("b") << "";
        QTest::newRow("the last entry, found before") << QByteArray("b\tB\nb\n") << QByteArray("b") << "B";
        QTest::newRow("other case") << QByteArray("A\tB\n") << QByteArray("a") << "";
        QTest::newRow("a blank more") << QByteArray("a \tB\n") << QByteArray("a") << "";
        QTest::newRow("unknown") << QByteArray("a\tB\n") << QByteArray("c") << "";
    }

    void findsTheFirstEqualEntryAnywhere()
    {
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, name);
        QFETCH(QString, title);
        const TitleTable table({file.data(), static_cast<std::size_t>(file.size())});
        const auto found = table.titleOf({name.data(), static_cast<std::size_t>(name.size())});
        QCOMPARE(textOf(found.value_or("")), title);
    }

    void anEmptyTableHasNoTitles()
    {
        QVERIFY(!TitleTable().titleOf("a"));
        QVERIFY(!TitleTable("").titleOf(""));
    }

    void manyEntriesAreAllFound()
    {
        std::string file;
        for (int i = 0; i < 5000; ++i)
            file += "set" + std::to_string(i) + "\ttitle " + std::to_string(i) + "\r\n";
        TitleTable table;
        {
            TitleTable other(file);
            table = std::move(other);
        }
        for (int i = 0; i < 5000; ++i)
            QVERIFY(table.titleOf("set" + std::to_string(i)) == "title " + std::to_string(i));
    }
};

TESSERA_TEST(TitleTableTest);
#include "titletabletest.moc"
