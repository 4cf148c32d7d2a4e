#include "tools/printedtext.h"

#include "core/encodings.h"
#include "support/testmain.h"

#include <QFile>
#include <QTemporaryDir>

#include <random>

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
        const auto printed = readPrinted(file.fileName());
        QVERIFY(printed.has_value());
        QCOMPARE(words(printedText(*printed)), QStringList({"caf\uFFFD", "ポン"}));
        QVERIFY(firstWords(*printed).front() == "caf\xE9");
    }

    void replacesAsIfAllWereDecodedAtOnce()
    {
        std::mt19937 random(8);
        for (int round = 0; round < 300; ++round) {
            std::string bytes;
            for (unsigned i = random() % 900; i > 0; --i)
                bytes += random() % 40 == 0 ? static_cast<char>(random()) : 'a';
            for (unsigned i = random() % 9; i > 0; --i)
                bytes.insert(random() % (bytes.size() + 1), "\xE3\x83\x9D\xF0\x9F\x98");
            std::string expected;
            appendUtf8(expected, bytes);
            QCOMPARE(printedText(bytes), expected);
        }
    }

    void aLongFileIsReadWhole()
    {
        QTemporaryDir folder;
        QFile file(folder.filePath("list"));
        QVERIFY(file.open(QIODevice::WriteOnly));
        const QByteArray bytes = QByteArray("a line of some length\n").repeated(50'000);
        file.write(bytes);
        file.close();
        QVERIFY(readPrinted(file.fileName()) == bytes.toStdString());
    }

    void setsAreTheSameReadFromAFile()
    {
        std::mt19937 random(3);
        QTemporaryDir folder;
        for (const unsigned longest : {20U, 3000U, 200'000U}) {
            std::string text;
            while (text.size() < 400'000) {
                text += std::array{"", " ", "\t", "\n"}[random() % 4];
                text += "word" + std::to_string(text.size()) + std::string(random() % longest, 'x');
                text += std::array{" rest", "", " \"x y\""}[random() % 3];
                text += '\n';
            }
            text += "  last";
            QFile file(folder.filePath("list"));
            QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
            file.write(text.data(), static_cast<qint64>(text.size()));
            file.close();
            const auto sets = ListedSets::read(file.fileName());
            QVERIFY(sets.has_value());
            const auto expected = firstWords(text);
            QCOMPARE(sets->size(), expected.size());
            for (std::size_t i = 0; i < expected.size(); ++i)
                QVERIFY((*sets)[i] == expected[i]);
        }
        QCOMPARE(ListedSets::read(folder.path()).error().key, "convert_not_read");
    }

    void whatCannotBeReadIsAFailure()
    {
        QTemporaryDir folder;
        for (const QString& path : {folder.path(), folder.filePath("none")}) {
            const auto text = readPrinted(path);
            QVERIFY(!text.has_value());
            QCOMPARE(text.error().key, "convert_not_read");
            QCOMPARE(text.error().arguments.first(), path);
        }
    }
};

TESSERA_TEST(PrintedTextTest);
#include "printedtexttest.moc"
