#include "info/historyxml.h"

#include "support/testmain.h"

using namespace tessera;

namespace {

constexpr char file[]
    = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<history version=\"2.60\" date=\"2024-01-31\">\r\n"
      "\t<entry>\r\n\t\t<software>\r\n\t\t\t<item list=\"nes\" name=\"pacman\" />\r\n\t\t</software>\r\n"
      "\t\t<text>A cartridge.</text>\r\n\t</entry>\r\n"
      "\t<entry>\r\n\t\t<systems>\r\n\t\t\t<system name=\"pacman\" />\r\n\t\t\t<system name=\"puckman\" "
      "/>\r\n"
      "\t\t</systems>\r\n\t\t<text>\r\nArcade game published 1980.\r\n\r\nA maze &amp; "
      "<![CDATA[<ghosts>]]>.\r\n"
      "\r\n</text>\r\n\t</entry>\r\n"
      "\t<entry>\r\n\t\t<systems><system name=\"puckman\" /><system name=\"silent\" /></systems>\r\n"
      "\t\t<text/>\r\n\t</entry>\r\n</history>\r\n";

QByteArray entryOf(const HistoryXml& history, std::string_view name)
{
    const auto text = history.entry(name);
    return text ? QByteArray("").append(text->data(), static_cast<qsizetype>(text->size())) : QByteArray();
}

} // namespace

class HistoryXmlTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyNameOfAnEntryFindsIt()
    {
        const auto history = HistoryXml::parse(file, QString());
        QVERIFY(history.has_value());
        const QByteArray text("Arcade game published 1980.\n\nA maze & <ghosts>.\n");
        QCOMPARE(entryOf(*history, "pacman"), text);
        QCOMPARE(entryOf(*history, "puckman"), text);
        QCOMPARE(entryOf(*history, "silent"), QByteArray("\n"));
        QVERIFY(entryOf(*history, "Pacman").isNull());
        QVERIFY(entryOf(*history, "").isNull());
    }

    void softwareIsNotAMachine()
    {
        const auto history = HistoryXml::parse("<history><entry><software><item list=\"nes\" name=\"smb\"/>"
                                               "</software><text>A</text></entry></history>",
                                               QString());
        QVERIFY(history.has_value());
        QVERIFY(entryOf(*history, "smb").isNull());
    }

    void blanksAroundATextAreLeftOut()
    {
        const auto history = HistoryXml::parse("<history><entry><systems><system name=\"a\"/></systems><text>"
                                               " \t\r\n A  B\t\n \r</text></entry><entry><systems>"
                                               "<system name=\"b\"/></systems><text> \n\t </text></entry>"
                                               "<entry><systems><system name=\"c\"/></systems></entry>"
                                               "</history>",
                                               QString());
        QVERIFY(history.has_value());
        QCOMPARE(entryOf(*history, "a"), QByteArray("A  B\n"));
        QCOMPARE(entryOf(*history, "b"), QByteArray("\n"));
        QCOMPARE(entryOf(*history, "c"), QByteArray("\n"));
    }

    void whatStandsBeforeItIsLeftOut()
    {
        const std::string entry = "<history><entry><systems><system name=\"a\"/></systems><text>A</text>"
                                  "</entry></history>";
        for (const char* before : {"", " \r\n", "\xEF\xBB\xBF", "\xEF\xBB\xBF\r\n",
                                   "\r\n<?xml version=\"1.0\" encoding=\"Shift_JIS\"?>"}) {
            const auto history = HistoryXml::parse(before + entry, QString());
            QVERIFY(history.has_value());
            QCOMPARE(entryOf(*history, "a"), QByteArray("A\n"));
        }
    }

    void anEntityThatIsNotKnownStaysAsItIsWritten()
    {
        const auto history = HistoryXml::parse(
            "<?xml version=\"1.0\"?><!DOCTYPE history [<!ENTITY b \"bbbb\">]><history><entry><systems>"
            "<system name=\"a&amp;\"/></systems><text>&a; &b; &lt;</text></entry></history>",
            QString());
        QVERIFY(history.has_value());
        QCOMPARE(entryOf(*history, "a&"), QByteArray("&a; &b; <\n"));
    }

    void anEntryMayHoldAnything()
    {
        std::string nested;
        for (int level = 0; level < 100'000; ++level)
            nested += "<b>";
        for (int level = 0; level < 100'000; ++level)
            nested += "</b>";
        const auto history = HistoryXml::parse("<history><other/><entry>" + nested
                                                   + "<text>A<b>not</b> B</text><systems><system name=\"a\">"
                                                     "<x/></system><y/><system name=\"b\"/></systems></entry>"
                                                     "</history>",
                                               QString());
        QVERIFY(history.has_value());
        QCOMPARE(entryOf(*history, "a"), QByteArray("A B\n"));
        QCOMPARE(entryOf(*history, "b"), QByteArray("A B\n"));
    }

    void brokenFilesAreRefused_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("why"); // empty for the reader's own words
        const QString noHistory = QStringLiteral("no <history>");
        QTest::newRow("cut off") << QByteArray(file).left(400) << QString();
        QTest::newRow("not closed") << QByteArray("<history><entry>") << QString();
        QTest::newRow("something else") << QByteArray("<?xml version=\"1.0\"?><mame></mame>") << noHistory;
        QTest::newRow("a declaration alone") << QByteArray("<?xml version=\"1.0\"?>") << QString();
    }

    void brokenFilesAreRefused()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, why);
        const auto history = HistoryXml::parse(text.toStdString(), QStringLiteral("/a/history.xml"));
        QVERIFY(!history.has_value());
        QCOMPARE(QByteArray(history.error().key), QByteArray("info_bad_xml"));
        QCOMPARE(history.error().arguments.value(0), QStringLiteral("/a/history.xml"));
        QCOMPARE(history.error().arguments.size(), 2);
        if (!why.isEmpty())
            QCOMPARE(history.error().arguments[1], why);
        else
            QVERIFY(!history.error().arguments[1].isEmpty()
                    && !history.error().arguments[1].contains("no <"));
    }

    void theFormIsKnownByItsBeginning_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("isXml");
        QTest::newRow("declaration") << QByteArray("<?xml version=\"1.0\"?>") << true;
        QTest::newRow("mark") << QByteArray("\xEF\xBB\xBF<?xml version=\"1.0\"?>") << true;
        QTest::newRow("root") << QByteArray("\r\n<history>") << true;
        QTest::newRow("blanks before") << QByteArray(" \t\n<history>") << true;
        QTest::newRow("mark and blanks") << QByteArray("\xEF\xBB\xBF\r\n<history>") << true;
        QTest::newRow("another root") << QByteArray("<mame>") << false;
        QTest::newRow("classic") << QByteArray("# <?xml\r\n$info=a\r\n") << false;
        QTest::newRow("nothing") << QByteArray("") << false;
        QTest::newRow("blanks") << QByteArray(" \r\n") << false;
    }

    void theFormIsKnownByItsBeginning()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, isXml);
        QCOMPARE(isHistoryXml(text.toStdString()), isXml);
    }
};

TESSERA_TEST(HistoryXmlTest);
#include "historyxmltest.moc"
