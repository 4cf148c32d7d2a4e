#include "info/historysearch.h"

#include "support/testmain.h"

using namespace tessera;

namespace {

std::string_view viewOf(const QByteArray& bytes)
{
    return {bytes.data(), static_cast<std::size_t>(bytes.size())};
}

// Nothing gives a null array.
QByteArray bytesOf(const std::optional<std::string_view>& text)
{
    return text ? QByteArray("").append(text->data(), static_cast<qsizetype>(text->size())) : QByteArray();
}

} // namespace

class HistorySearchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aHistoryEntryIsFoundByItsExactForms_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("name");
        QTest::addColumn<QByteArray>("text"); // null for none
        const QByteArray none;
        const QByteArray alone("$info=pacman\r\n$bio\r\n\r\nA maze.\r\n$end\r\n");
        const QByteArray two("$info=pacman,puckman,\r\n$bio\r\n\r\nA maze.\r\n$end\r\n");
        const auto row
            = [](const char* name, const QByteArray& file, const char* set, const QByteArray& text) {
                  QTest::newRow(name) << file << QByteArray(set) << text;
              };
        row("alone on its line keeps the blank line", alone, "pacman", "\r\nA maze.\r\n");
        row("first of two skips the blank line", two, "pacman", "A maze.\r\n");
        row("second of two", two, "puckman", none);
        row("one name and a comma", "$info=pacman,\r\n$bio\r\n\r\nA maze.$end", "pacman", "A maze.");
        row("another case", alone, "Pacman", none);
        row("the beginning of a name", alone, "pac", none);
        row("the end of a name", alone, "man", none);
        row("alone goes before first of two", two + alone, "pacman", "\r\nA maze.\r\n");
        row("the first of two alone", alone + "$info=pacman\r\n$bio\r\nB$end", "pacman", "\r\nA maze.\r\n");
        row("not at a line's start", "# $info=pacman\r\n$bio\r\nA$end", "pacman", "A");
        row("bare line feeds", "$info=pacman\n$bio\n\nA\n$end\n", "pacman", none);
        row("a blank behind the name", "$info=pacman \r\n$bio\r\nA$end", "pacman", none);
        row("no text at all", "$info=pacman\r\n$bio\r\n$end", "pacman", "");
        row("no tag", "$info=pacman\r\nA$end", "pacman", none);
        row("an entry for the info file", "$info=pacman\r\n$mame\r\nA$end", "pacman", none);
        // Deliberately the next one that is followed by a blank line, whosever it is.
        row("first of two without a blank line",
            "$info=a,b,\r\n$bio\r\nA$end\r\n$info=c\r\n$bio\r\n\r\nC$end", "a", "C");
        row("first of two without a tag", "$info=a,b,\r\nA$end", "a", none);
        row("a name of markup", "$info=<b>%1&\r\n$bio\r\nA$end", "<b>%1&", "A");
        row("an empty file", "", "pacman", none);
    }

    void aHistoryEntryIsFoundByItsExactForms()
    {
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, name);
        QFETCH(QByteArray, text);
        const QByteArray found = bytesOf(exactEntry(viewOf(file), viewOf(name), EntryKind::Bio));
        QCOMPARE(found, text);
        QCOMPARE(found.isNull(), text.isNull());
    }

    void anInfoEntryHasOneFormOnly_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("alone") << QByteArray("$info=pacman\r\n$mame\r\n0.36b1\r\n$end")
                               << QByteArray("0.36b1\r\n");
        QTest::newRow("first of two")
            << QByteArray("$info=pacman,puckman,\r\n$mame\r\n\r\nA$end") << QByteArray();
        QTest::newRow("a history entry") << QByteArray("$info=pacman\r\n$bio\r\nA$end") << QByteArray();
    }

    void anInfoEntryHasOneFormOnly()
    {
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, text);
        const QByteArray found = bytesOf(exactEntry(viewOf(file), "pacman", EntryKind::Mame));
        QCOMPARE(found, text);
        QCOMPARE(found.isNull(), text.isNull());
    }

    // Deliberately over whatever stands between, the next entry as well.
    void anEntryEndsAtTheFirstEndBehindIt_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("the next entry's")
            << QByteArray("$info=a\r\n$bio\r\nA\r\n$info=b\r\n$bio\r\nB\r\n$end\r\n$end\r\n")
            << QByteArray("A\r\n$info=b\r\n$bio\r\nB\r\n");
        QTest::newRow("first of two, the next entry's")
            << QByteArray("$info=a,b\r\n$bio\r\n\r\nA\r\n$info=b\r\n$bio\r\nB\r\n$end")
            << QByteArray("A\r\n$info=b\r\n$bio\r\nB\r\n");
        QTest::newRow("within a line") << QByteArray("$info=a\r\n$bio\r\nThe $ending.") << QByteArray("The ");
    }

    void anEntryEndsAtTheFirstEndBehindIt()
    {
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, text);
        QCOMPARE(bytesOf(exactEntry(viewOf(file), "a", EntryKind::Bio)), text);
    }

    void anEntryWithoutAnyEndGoesUpToTheNextOne_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::newRow("the next entry")
            << QByteArray("$end\r\n$info=a\r\n$bio\r\nA\r\n$info=b\r\n$bio\r\nB\r\n");
        QTest::newRow("the end of the file") << QByteArray("$info=a\r\n$bio\r\nA\r\n");
        QTest::newRow("first of two, the next entry")
            << QByteArray("$info=a,b\r\n$bio\r\n\r\nA\r\n$info=b\r\n$bio\r\nB\r\n");
        QTest::newRow("first of two, the end of the file") << QByteArray("$info=a,b\r\n$bio\r\n\r\nA\r\n");
    }

    void anEntryWithoutAnyEndGoesUpToTheNextOne()
    {
        QFETCH(QByteArray, file);
        QCOMPARE(bytesOf(exactEntry(viewOf(file), "a", EntryKind::Bio)), QByteArray("A\r\n"));
    }

    void anEntryIsFiledUnderTheFirstNameOfItsLine_data()
    {
        QTest::addColumn<QByteArray>("file");
        QTest::addColumn<QByteArray>("under"); // empty for none
        QTest::addColumn<QByteArray>("text");
        const auto row = [](const char* name, const QByteArray& file, const char* under, const char* text) {
            QTest::newRow(name) << file << QByteArray(under) << QByteArray(text);
        };
        row("second of two", "$info=pacman,puckman,\r\n$bio\r\n\r\nA\r\n$end", "pacman", "\r\nA\r\n");
        row("no comma at the end", "$info=pacman,puckman\r\n$bio\r\nA$end", "pacman", "A");
        row("blanks", "$info= pacman , puckman \r\n$bio \r\nA$end", "pacman", "A");
        row("an empty name in front", "$info=,pacman,puckman\r\n$bio\r\nA$end", "pacman", "A");
        row("bare line feeds", "$info=puckman\n$bio\nA\n$end\n", "puckman", "A\n");
        row("line feeds and second", "$info=pacman,puckman,\n$bio\n\nA\n$end\n", "pacman", "\nA\n");
        row("a line of another tag between", "$info=pacman,puckman,\n$nes=x,\n$bio\nA$end", "pacman", "A");
        row("another kind of entry first", "$info=puckman\n$mame\nM\n$end\n$info=puckman\n$bio\nA\n$end",
            "puckman", "A\n");
        row("the next one's end", "$info=puckman\n$bio\nA\n$info=b\n$bio\nB\n$end", "puckman",
            "A\n$info=b\n$bio\nB\n");
        row("without an end", "$info=puckman\n$bio\nA\n$info=b\n$bio\nB\n", "puckman", "A\n");
        row("a part of a name", "$info=puckmana,apuckman\r\n$bio\r\nA$end", "", "");
        row("without a tag", "$info=puckman\n$end\n$bio\nA\n$end", "", "");
        row("cut off behind the name", "$info=puckman", "", "");
        row("tabs", "$info=\tpacman\t,\tpuckman\t\r\n\t$bio\t\r\nA$end", "", "");
        row("tabs around names", "$info=\tpacman\t,\tpuckman\t\r\n$bio\t\r\nA$end", "pacman", "A");
        row("a line that is no tag between", "$info=pacman,puckman,\nx\n$bio\nA\n$end", "", "");
        row("the second of two entries", "$info=a,b\n$bio\nB\n$end\n$info=puckman,c\n$bio\nA\n$end",
            "puckman", "A\n");
        row("last of three", "$info=pacman,puc,puckman\n$bio\nA\n$end", "pacman", "A\n");
        row("a line of commas", "$info=,,,\r\n$bio\r\nA$end", "", "");
    }

    void anEntryIsFiledUnderTheFirstNameOfItsLine()
    {
        QFETCH(QByteArray, file);
        QFETCH(QByteArray, under);
        QFETCH(QByteArray, text);
        const auto filed = filedEntry(viewOf(file), "puckman", EntryKind::Bio);
        QCOMPARE(QByteArray::fromStdString(filed ? filed->name : std::string()), under);
        QCOMPARE(filed ? bytesOf(filed->text) : QByteArray(""), text);
    }

    void nothingIsFiledUnderNoName() { QVERIFY(!filedEntry("$info=,\n$bio\nA\n$end", "", EntryKind::Bio)); }

    void linesOfAnEntryRunTogether_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QByteArray>("parsed");
        const auto row = [](const char* name, const char* text, const char* parsed) {
            QTest::newRow(name) << QByteArray(text) << QByteArray(parsed);
        };
        row("nothing", "", "");
        row("two lines", "ab\r\ncd\r\n", "abcd");
        row("one character", "a\r\n", "a");
        row("a paragraph", "ab\r\n\r\ncd\r\n", "ab\r\ncd");
        row("empty lines", "\r\n\r\n", "\r\n\r\n");
        row("line feeds", "ab\ncd\n", "ab\ncd\n");
        row("carriage returns", "ab\rcd\r", "ab\rcd\r");
        row("no end", "ab\r\ncd", "abcd");
        row("all kinds", "ab\rcd\nef\r\n\n\r\r\ngh", "ab\rcd\nef\n\r\r\ngh");
        row("line feed before", "ab\n\r\ncd", "ab\n\r\ncd");
        row("a blank is something", " \r\nx", " x");
    }

    void linesOfAnEntryRunTogether()
    {
        QFETCH(QByteArray, text);
        QFETCH(QByteArray, parsed);
        QCOMPARE(QByteArray::fromStdString(makeParsedString(viewOf(text))), parsed);
    }
};

TESSERA_TEST(HistorySearchTest);
#include "historysearchtest.moc"
