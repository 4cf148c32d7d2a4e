#include "tools/printedtext.h"

#include "support/testmain.h"

#include <QFile>
#include <QTemporaryDir>

using namespace tessera;

namespace {

QStringList words(std::string_view text)
{
    QStringList list;
    for (const std::string_view word : firstWords(text))
        list << QString::fromUtf8(word.data(), static_cast<qsizetype>(word.size()));
    return list;
}

} // namespace

class PrintedTextTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void takesTheFirstWordOfEachLine_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QStringList>("expected");
        const auto row = [](const char* name, const char* text, const QStringList& expected) {
            QTest::newRow(name) << QByteArray(text) << expected;
        };
        row("nothing", "", {});
        row("blank lines only", " \n\t\n\n \r\n", {});
        row("the usual layout", "Name:             Description:\npong              \"Pong\"\n",
            {"Name:", "pong"});
        row("no line feed at the end", "a \"A\"\nb \"B\"", {"a", "b"});
        row("blanks before the word", "   pong \"Pong\"\n\t  a b\n", {"pong", "a"});
        row("an empty line gives none", "a b\n\n\nc d\n", {"a", "c"});
        row("a line of one word", "pong\nb\n", {"pong", "b"});
        row("only a blank ends the word", "a\tb c\n", {"a\tb"});
        row("a carriage return belongs to a lone word", "pong\r\nb \"B\"\r\n", {"pong\r", "b"});
        row("the same word twice", "a b\na c\n", {"a", "a"});
    }

    void takesTheFirstWordOfEachLine()
    {
        QFETCH(QByteArray, text);
        QFETCH(QStringList, expected);
        QCOMPARE(words({text.constData(), static_cast<std::size_t>(text.size())}), expected);
    }

    void bytesThatAreNoTextAreReplaced()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath("list"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("caf\xE9 \"\xE9\"\nポン b\n");
        file.close();
        const auto text = readPrintedText(file.fileName());
        QVERIFY(text.has_value());
        QCOMPARE(words(*text), QStringList({"caf\uFFFD", "ポン"}));
    }

    void aLongFileIsReadWhole()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath("list"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QByteArray bytes = QByteArray("a line of some length\n").repeated(50'000);
        file.write(bytes);
        file.close();
        QVERIFY(readPrintedText(file.fileName()) == bytes.toStdString());
    }

    void whatCannotBeReadIsAFailure()
    {
        QTemporaryDir folder;
        for (const QString& path : {folder.path(), folder.filePath("none")}) {
            const auto text = readPrintedText(path);
            QVERIFY(!text.has_value());
            QCOMPARE(text.error().key, "convert_not_read");
            QCOMPARE(text.error().arguments.first(), path);
        }
    }
};

TESSERA_TEST(PrintedTextTest);
#include "printedtexttest.moc"
