#include "tools/listxmlconverter.h"

#include "naiveconverter.h"
#include "support/testmain.h"
#include "tools/titletable.h"

using namespace tessera;

namespace {

struct Converted {
    QStringList records; ///< the nine values of each, joined by "|"
    QStringList ids;
    QString lastId;
    std::size_t games = 0;
    bool isWhole = false;
};

// Read back by the layout's own lines, since a value may hold what would be markup anywhere else.
Converted readBack(const ConvertedList& list)
{
    Converted converted;
    converted.games = list.games;
    converted.isWhole = list.isWhole;
    const QString store = QString::fromStdString(list.text.joined());
    converted.lastId = store.section("<nextObjectID>", 1).section("</nextObjectID>", 0, 0);
    for (const QString& object : store.split("<object type=\"MAME\" id=\"").mid(1)) {
        converted.ids << object.section('"', 0, 0);
        QStringList values;
        for (const QString& attribute : object.split("\" type=\"string\">").mid(1))
            values << attribute.section("</attribute>\n", 0, 0);
        converted.records << values.join('|');
    }
    return converted;
}

std::expected<ConvertedList, Failure> convert(const QByteArray& text, const TitleTable& titles,
                                              ConversionOptions options)
{
    ListxmlConverter converter(titles, options);
    if (const auto fed = converter.feed({text.data(), static_cast<std::size_t>(text.size())}); !fed)
        return std::unexpected(fed.error());
    return converter.finish();
}

Converted converted(const QByteArray& text, const QByteArray& titles = {}, ConversionOptions options = {})
{
    const TitleTable table({titles.data(), static_cast<std::size_t>(titles.size())});
    const auto list = convert(text, table, options);
    return list ? readBack(*list) : Converted();
}

const QByteArray pong = "\t<game name=\"pong\" sourcefile=\"pong.c\" cloneof=\"tennis\" >\n"
                        "\t\t<description>Pong</description>\n\t\t<year>1972</year>\n"
                        "\t\t<manufacturer>Atari</manufacturer>\n"
                        "\t\t<driver status=\"good\" emulation=\"good\"/>\n"
                        "\t\t<device type=\"paddle\" tag=\"x\"/>\n\t</game>\n";

QByteArray game(const QByteArray& attributes)
{
    return "<game name=\"a\" " + attributes + " ><description>A</description></game>\n";
}

} // namespace

class ListxmlConverterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void writesTheWholeLayout()
    {
        const TitleTable titles("pong\tPON\n");
        const auto list = convert("<mame>\n" + pong + "</mame>\n", titles, {});
        QVERIFY(list);
        const std::string store = list->text.joined();
        const QString uuid = QString::fromStdString(test::uuidOf(store));
        QVERIFY(QRegularExpression("^[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$").match(uuid).hasMatch());
        const QString expected = "<?xml version=\"1.0\"?>\n"
                                 "<!DOCTYPE database SYSTEM \"file:///System/Library/DTDs/CoreData.dtd\">\n"
                                 "\n"
                                 "<database>\n<databaseInfo>\n<version>134481920</version>\n<UUID>"
            + uuid
            + "</UUID>\n"
              "<nextObjectID>102</nextObjectID>\n<metadata></metadata>\n</databaseInfo>\n"
              "<object type=\"MAME\" id=\"z102\">\n"
              "<attribute name=\"type\" type=\"string\">game</attribute>\n"
              "<attribute name=\"name\" type=\"string\">pong</attribute>\n"
              "<attribute name=\"cloneof\" type=\"string\">tennis</attribute>\n"
              "<attribute name=\"title\" type=\"string\">Pong</attribute>\n"
              "<attribute name=\"titlejp\" type=\"string\">PON</attribute>\n"
              "<attribute name=\"year\" type=\"string\">1972</attribute>\n"
              "<attribute name=\"maker\" type=\"string\">Atari</attribute>\n"
              "<attribute name=\"status\" type=\"string\">good</attribute>\n"
              "<attribute name=\"device\" type=\"string\">paddle</attribute>\n"
              "</object>\n"
              "</database>";
        QCOMPARE(QString::fromStdString(store), expected);
        QCOMPARE(list->games, std::size_t(1));
        QVERIFY(list->isWhole);
    }

    void everyRunHasANewIdentifier()
    {
        const auto first = convert(pong, {}, {});
        const auto second = convert(pong, {}, {});
        QVERIFY(first && second);
        QVERIFY(test::uuidOf(first->text.joined()) != test::uuidOf(second->text.joined()));
    }

    void readsTheFields_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("record");
        QTest::newRow("a parent is its own parent")
            << QByteArray("<game name=\"a\" b=\"\"><description>A</description></game>")
            << "game|a|a|A|A|????|????|????|";
        QTest::newRow("a clone names its parent") << game("cloneof=\"p\"") << "game|a|p|A|A|????|????|????|";
        QTest::newRow("everything missing but a flag")
            << QByteArray("<game name=\"a\" ></game>") << "game|a|a|????|????|????|????|????|";
        QTest::newRow("no name, but cloneof")
            << QByteArray("<game cloneof=\"p\" ></game>") << "game|????|p|????|????|????|????|????|";
        QTest::newRow("a name closed by a bracket runs on to quote and blank")
            << QByteArray("<game name=\"a\"><b c=\"d\" ></b></game>")
            << "game|a\"><b c=\"d|a\"><b c=\"d|????|????|????|????|????|";
        QTest::newRow("a name closed by a slash runs on")
            << QByteArray("<game name=\"a\"/>\n<x y=\"z\" /></game>")
            << "game|a\"/>\n<x y=\"z|a\"/>\n<x y=\"z|????|????|????|????|????|";
        QTest::newRow("a name that is never closed runs to the end of the element")
            << QByteArray("<game name=\"a\"></game> x=\"y\" ") << "game|a\">|a\">|????|????|????|????|????|";
        QTest::newRow("a title that is never closed runs to the end of the element")
            << QByteArray("<game name=\"a\" ><description>A</game>") << "game|a|a|A|A|????|????|????|";
        QTest::newRow("a year before the title is not seen")
            << QByteArray("<game name=\"a\" ><year>1</year><description>A</description></game>")
            << "game|a|a|A|A|????|????|????|";
        QTest::newRow("a second year after the title is")
            << QByteArray("<game name=\"a\" ><year>1</year><description>A</description><year>2</year></game>")
            << "game|a|a|A|A|2|????|????|";
        QTest::newRow("cloneof before name is not seen")
            << QByteArray("<game cloneof=\"p\" name=\"a\" ></game>") << "game|a|a|????|????|????|????|????|";
        QTest::newRow("a missing field moves nothing")
            << QByteArray("<game name=\"a\" ><manufacturer>M</manufacturer></game>")
            << "game|a|a|????|????|????|M|????|";
        QTest::newRow("a maker before the year is not seen")
            << QByteArray("<game name=\"a\" ><manufacturer>M</manufacturer><year>1</year></game>")
            << "game|a|a|????|????|1|????|????|";
        QTest::newRow("the first device")
            << QByteArray("<game name=\"a\" ><device type=\"x\" /><device type=\"y\" /></game>")
            << "game|a|a|????|????|????|????|????|x";
        QTest::newRow("an empty value is not a missing one")
            << QByteArray("<game name=\"a\" ><description></description><year></year></game>")
            << "game|a|a||||????|????|";
        QTest::newRow("the name's needle in another attribute")
            << QByteArray("<game filename=\"f\" name=\"a\" ></game>") << "game|f|f|????|????|????|????|????|";
        QTest::newRow("entities stay as they are")
            << QByteArray("<game name=\"a\" ><description>A &amp; B</description></game>")
            << "game|a|a|A &amp; B|A &amp; B|????|????|????|";
    }

    void readsTheFields()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, record);
        QCOMPARE(converted(text).records, {record});
    }

    void anElementWithNeitherNameNorCloneofTakesTheRestOfTheText()
    {
        const QByteArray rest = "x=\"1\" ></game>\n<game name=\"b\" ></game>\n<game ></game> the \xFF"
                                "end";
        const QString readable
            = QString::fromUtf8("x=\"1\" ></game>\n<game name=\"b\" ></game>\n<game ></game> the \uFFFDend");
        const QString last = QString::fromUtf8("></game> the \uFFFDend");
        const Converted found = converted("<game " + rest);
        QCOMPARE(found.records,
                 QStringList({"game|????|" + readable + "|????|????|????|????|????|",
                              "game|b|b|????|????|????|????|????|",
                              "game|????|" + last + "|????|????|????|????|????|"}));
    }

    void theFlagsDecideTheKind_data()
    {
        QTest::addColumn<QByteArray>("flags");
        QTest::addColumn<QString>("kind");
        QTest::newRow("none") << QByteArray() << "game";
        QTest::newRow("bios") << QByteArray("isbios=\"yes\"") << "bios";
        QTest::newRow("mechanical") << QByteArray("ismechanical=\"yes\"") << "mechanical";
        QTest::newRow("device") << QByteArray("isdevice=\"yes\"") << "device";
        QTest::newRow("no") << QByteArray("isbios=\"no\" ismechanical=\"no\" isdevice=\"no\"") << "game";
        QTest::newRow("mechanical over bios")
            << QByteArray("ismechanical=\"yes\" isbios=\"yes\"") << "mechanical";
        QTest::newRow("device over mechanical")
            << QByteArray("isdevice=\"yes\" ismechanical=\"yes\"") << "device";
        QTest::newRow("device over bios") << QByteArray("isbios=\"yes\" isdevice=\"yes\"") << "device";
        QTest::newRow("mechanical in capitals") << QByteArray("ISMECHANICAL=\"YES\"") << "mechanical";
        QTest::newRow("mechanical in mixed case") << QByteArray("isMechanical=\"Yes\"") << "mechanical";
        QTest::newRow("bios in capitals") << QByteArray("ISBIOS=\"YES\"") << "game";
        QTest::newRow("device in capitals") << QByteArray("ISDEVICE=\"YES\"") << "game";
        QTest::newRow("device, capital value") << QByteArray("isdevice=\"YES\"") << "game";
        QTest::newRow("anywhere in the element") << QByteArray("><x><!-- isbios=\"yes\" --></x") << "bios";
    }

    void theFlagsDecideTheKind()
    {
        QFETCH(QByteArray, flags);
        QFETCH(QString, kind);
        const Converted found = converted(game(flags));
        QCOMPARE(found.records.size(), 1);
        QCOMPARE(found.records.first().section('|', 0, 0), kind);
    }

    void aSetIsLeftOutForAnyFlagWhoseBoxIsOn_data()
    {
        QTest::addColumn<QByteArray>("flags");
        QTest::addColumn<QString>("boxes"); // of "bmd"
        QTest::addColumn<bool>("kept");
        const QByteArray both = "isbios=\"yes\" isdevice=\"yes\"";
        QTest::newRow("bios and device, no box") << both << "" << true;
        QTest::newRow("bios and device, bios box") << both << "b" << false;
        QTest::newRow("bios and device, device box") << both << "d" << false;
        QTest::newRow("bios and device, both boxes") << both << "bd" << false;
        QTest::newRow("bios and device, mechanical box") << both << "m" << true;
        QTest::newRow("mechanical in capitals") << QByteArray("ISMECHANICAL=\"YES\"") << "m" << false;
        QTest::newRow("a game, all boxes") << QByteArray() << "bmd" << true;
        QTest::newRow("bios in capitals is a game") << QByteArray("ISBIOS=\"YES\"") << "bmd" << true;
    }

    void aSetIsLeftOutForAnyFlagWhoseBoxIsOn()
    {
        QFETCH(QByteArray, flags);
        QFETCH(QString, boxes);
        QFETCH(bool, kept);
        const ConversionOptions options{boxes.contains('b'), boxes.contains('m'), boxes.contains('d')};
        QCOMPARE(converted(game(flags), {}, options).games, std::size_t(kept ? 1 : 0));
    }

    void setsThatAreLeftOutLeaveNoGap()
    {
        const Converted found
            = converted(game({}) + game("isbios=\"yes\"") + game({}) + game("isbios=\"yes\""), {}, {true});
        QCOMPARE(found.ids, QStringList({"z102", "z103"}));
        QCOMPARE(found.lastId, "103");
        QCOMPARE(found.games, std::size_t(2));
    }

    void looksTheJapaneseTitleUp_data()
    {
        QTest::addColumn<QByteArray>("titles");
        QTest::addColumn<QString>("titlejp");
        QTest::newRow("known") << QByteArray("pong\tPON\n") << "PON";
        QTest::newRow("unknown") << QByteArray("pang\tPAN\n") << "P &amp; P";
        QTest::newRow("the last entry") << QByteArray("pang\tPAN\npong\n") << "P &amp; P";
        QTest::newRow("a line of one field takes the next name") << QByteArray("pong\npang\tPAN\n") << "pang";
        QTest::newRow("all five entities") << QByteArray("pong\t<&>\"'\n") << "&lt;&amp;&gt;&quot;&apos;";
        QTest::newRow("case-sensitive") << QByteArray("PONG\tPON\n") << "P &amp; P";
        QTest::newRow("a control character") << QByteArray("pong\ta\x02"
                                                           "b\n")
                                             << QString::fromUtf8("a\uFFFDb");
    }

    void looksTheJapaneseTitleUp()
    {
        QFETCH(QByteArray, titles);
        QFETCH(QString, titlejp);
        const Converted found
            = converted("<game name=\"pong\" ><description>P &amp; P</description></game>", titles);
        QCOMPARE(found.records.value(0).section('|', 4, 4), titlejp);
    }

    void aNamelessSetIsLookedUpAsWritten()
    {
        const Converted found = converted("<game cloneof=\"x\" ></game>", "????\tnameless\n");
        QCOMPARE(found.records, {"game|????|x|????|nameless|????|????|????|"});
    }

    void replacesWhatAStoreCannotHold_data()
    {
        QTest::addColumn<QByteArray>("title");
        QTest::addColumn<QString>("written");
        QTest::newRow("UTF-8") << QByteArray("Caf\xC3\xA9 \xE3\x83\x91") << QString::fromUtf8("Café パ");
        QTest::newRow("bytes that are not UTF-8")
            << QByteArray("Caf\xE9!") << QString::fromUtf8("Caf\uFFFD!");
        QTest::newRow("a character cut off") << QByteArray("a\xE3\x83") << QString::fromUtf8("a\uFFFD");
        QTest::newRow("control characters")
            << QByteArray("a\x01\x1F\tb") << QString::fromUtf8("a\uFFFD\uFFFD\tb");
        QTest::newRow("no characters")
            << QByteArray("a\xEF\xBF\xBE\xEF\xBF\xBF") << QString::fromUtf8("a\uFFFD\uFFFD");
    }

    void replacesWhatAStoreCannotHold()
    {
        QFETCH(QByteArray, title);
        QFETCH(QString, written);
        const Converted found
            = converted("<game name=\"a\" ><description>" + title + "</description></game>");
        QCOMPARE(found.records.value(0).section('|', 3, 3), written);
    }

    void anEmptyListIsAStoreWithoutObjects_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::newRow("no bytes") << QByteArray();
        QTest::newRow("no elements") << QByteArray("<mame build=\"1\">\n</mame>\n");
        QTest::newRow("other elements") << QByteArray("<games><gamex name=\"a\" ></gamex></games>");
        QTest::newRow("a tag in the text's last bytes") << QByteArray("<game");
        QTest::newRow("binary") << QByteArray("\x7F"
                                              "ELF\x02\x01\x01\xFF\xFE");
    }

    void anEmptyListIsAStoreWithoutObjects()
    {
        QFETCH(QByteArray, text);
        const Converted found = converted(text);
        QCOMPARE(found.lastId, "101");
        QCOMPARE(found.ids, QStringList());
        QCOMPARE(found.games, std::size_t(0));
    }

    void anElementThatIsCutOffEndsTheScan()
    {
        const Converted found = converted(game({}) + "<game name=\"b\" ><description>B</description></gam");
        QCOMPARE(found.ids, {"z102"});
        QVERIFY(!found.isWhole);
    }

    void theElementThatIsCutOffIsNamed_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<QString>("set"); // null where none is
        QTest::newRow("inside") << QByteArray("<game name=\"b\" ><description>B") << "b";
        QTest::newRow("in its name") << QByteArray("<game sourcefile=\"x\" name=\"bub") << "bub";
        QTest::newRow("before its name") << QByteArray("<game ") << "????";
        QTest::newRow("nowhere") << QByteArray("</mame>") << QString();
    }

    void theElementThatIsCutOffIsNamed()
    {
        QFETCH(QByteArray, text);
        QFETCH(QString, set);
        const auto list = convert(game({}) + text, {}, {});
        QVERIFY(list);
        QCOMPARE(list->games, std::size_t(1));
        QCOMPARE(list->stopped.has_value(), !set.isNull());
        if (list->stopped) {
            QCOMPARE(list->stopped->set, set);
            QVERIFY(list->stopped->why == StoppedAt::Why::CutOff);
        }
    }

    // In pieces, or in one.
    void anElementOfMoreThan64MegabytesEndsTheScan_data()
    {
        QTest::addColumn<int>("beyond"); // bytes more than the limit
        QTest::addColumn<bool>("hasEnd");
        QTest::addColumn<bool>("inPieces");
        for (const bool inPieces : {true, false}) {
            const char* how = inPieces ? "in pieces" : "in one piece";
            QTest::addRow("the largest, %s", how) << 0 << true << inPieces;
            QTest::addRow("one byte more, %s", how) << 1 << true << inPieces;
            QTest::addRow("much more, %s", how) << 6'000'000 << true << inPieces;
            QTest::addRow("no end, %s", how) << 6'000'000 << false << inPieces;
        }
    }

    void anElementOfMoreThan64MegabytesEndsTheScan()
    {
        QFETCH(int, beyond);
        QFETCH(bool, hasEnd);
        QFETCH(bool, inPieces);
        std::string text = "<game name=\"a\" ></game>\n<game ";
        const std::string start = "name=\"zz\" ><description>";
        text += start
            + std::string((std::size_t{64} << 20) - start.size() + static_cast<std::size_t>(beyond), 'x');
        if (hasEnd)
            text += "</game>";
        text += "<game name=\"b\" ></game></mame>";
        const TitleTable titles;
        ListxmlConverter converter(titles, {});
        const std::size_t step = inPieces ? std::size_t{128} * 1024 : text.size();
        for (std::size_t at = 0; at < text.size(); at += step)
            QVERIFY(converter.feed(std::string_view(text).substr(at, step)));
        const auto list = converter.finish();
        QVERIFY(list);
        QCOMPARE(list->stopped.has_value(), beyond > 0);
        QCOMPARE(list->isWhole, beyond == 0);
        QCOMPARE(list->games, std::size_t(beyond > 0 ? 1 : 3));
        if (list->stopped) {
            QCOMPARE(list->stopped->set, "zz");
            QVERIFY(list->stopped->why == StoppedAt::Why::TooLong);
        }
    }

    void behindAStopTheWholeTextStillCounts()
    {
        const TitleTable titles;
        const std::string longOne = "<machine name=\"zz\" >" + std::string((std::size_t{65} << 20), 'x');
        ListxmlConverter names(titles, {});
        QVERIFY(names.feed(longOne));
        QVERIFY(names.stopped() && !names.shouldBeginAgain());
        QVERIFY(names.feed("<ga"));
        QVERIFY(names.feed("me name=\"g\" >"));
        QVERIFY(names.shouldBeginAgain());
        ListxmlConverter bytes(titles, {});
        QVERIFY(bytes.feed(longOne));
        QVERIFY(!bytes.feed(std::string_view("a\0b", 3)));
    }

    void aListIsWholeWhenItEndsWithAnEndTag_data()
    {
        QTest::addColumn<QByteArray>("end");
        QTest::addColumn<bool>("isWhole");
        QTest::newRow("end tag") << QByteArray("</mame>") << true;
        QTest::newRow("end tag and lines") << QByteArray("</mame>\r\n\n") << true;
        QTest::newRow("start tag") << QByteArray("<mame>") << false;
        QTest::newRow("half an end tag") << QByteArray("</mam") << false;
        QTest::newRow("words") << QByteArray("</mame> error") << false;
    }

    void aListIsWholeWhenItEndsWithAnEndTag()
    {
        QFETCH(QByteArray, end);
        QFETCH(bool, isWhole);
        QCOMPARE(converted(game({}) + end).isWhole, isWhole);
    }

    void elementsAreCalledMachineWhereNoneIsCalledGame()
    {
        const QByteArray machine = QByteArray(pong).replace("game", "machine");
        QCOMPARE(converted(machine).records, converted(pong).records);
        QCOMPARE(converted("<machine name=\"a\" ></game> x</machine>").records.size(), 1);
    }

    void inAStreamTheFirstElementDecides()
    {
        const TitleTable titles;
        ListxmlConverter converter(titles, {});
        QVERIFY(converter.feed(
            "<machine name=\"m\" ></machine><game name=\"g\" ></game><machine name=\"n\" ></machine>"));
        const auto list = converter.finish();
        QVERIFY(list);
        QCOMPARE(readBack(*list).records.size(), 2);
        QVERIFY(converter.shouldBeginAgain());
    }

    void aGameInsideAMachineIsNoticed()
    {
        const TitleTable titles;
        ListxmlConverter converter(titles, {});
        QVERIFY(converter.feed("<machine name=\"m\" > <game </machine>"));
        QVERIFY(converter.finish());
        QVERIFY(converter.shouldBeginAgain());
    }

    void machinesAmongGamesAreNone()
    {
        const QByteArray text
            = "<game name=\"g\" ></game><machine name=\"m\" ></machine><game name=\"h\" ></game>";
        QCOMPARE(converted(text).records.size(), 2);
    }

    void refusesNulBytes_data()
    {
        QTest::addColumn<QByteArray>("text");
        const QByteArray nul(1, '\0');
        QTest::newRow("before the elements") << nul + game({});
        QTest::newRow("inside") << QByteArray(game({})).replace("A<", QByteArray(nul + "<"));
        QTest::newRow("behind") << game({}) + nul;
        QTest::newRow("in an element that is cut off") << QByteArray("<game name=\"a\" ") + nul;
        QTest::newRow("UTF-16") << QByteArray("\xFF\xFE<\0g\0a\0m\0e\0 \0", 14);
    }

    void refusesNulBytes()
    {
        QFETCH(QByteArray, text);
        const auto list = convert(text, {}, {});
        QVERIFY(!list);
        QCOMPARE(QByteArray(list.error().key), "convert_has_nul");
    }

    void anElementMayBeLargerThanAnyPiece()
    {
        const TitleTable titles;
        ListxmlConverter converter(titles, {});
        QVERIFY(converter.feed("<game name=\"a\" ><description>"));
        const std::string piece(100'000, 'x');
        for (int i = 0; i < 20; ++i)
            QVERIFY(converter.feed(piece));
        QVERIFY(converter.feed("</description><year>1999</year></game>"));
        const auto list = converter.finish();
        QVERIFY(list);
        const QString record = readBack(*list).records.value(0);
        QCOMPARE(record.section('|', 3, 3).size(), 2'000'000);
        QCOMPARE(record.section('|', 5, 5), "1999");
    }

    // Ten thousand times the rest of the text would be far more than a store may hold.
    void refusesAStoreThatWouldBeTooLarge()
    {
        const TitleTable titles;
        ListxmlConverter converter(titles, {});
        const std::string nameless = "<game ></game>" + std::string(100, ' ');
        for (int i = 0; i < 10'000; ++i)
            QVERIFY(converter.feed(nameless));
        const auto list = converter.finish();
        QVERIFY(!list);
        QCOMPARE(QByteArray(list.error().key), "convert_too_large");
    }
};

TESSERA_TEST(ListxmlConverterTest);
#include "listxmlconvertertest.moc"
