#include "catalogue/storewriter.h"

#include "catalogue/storelayout.h"
#include "catalogue/storereader.h"
#include "catalogue/storescanner.h"

#include "samplerecords.h"
#include "support/testmain.h"

#include <QRegularExpression>

using namespace tessera;
using namespace tessera::test;

class StoreWriterTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void layoutIsExact()
    {
        SampleRecords sample;
        sample.add({"game", "puckman", "puckman", "PuckMan", "パックマン", "1980", "Namco", "good", ""});
        sample.add({"bios", "neogeo", "neogeo", "A & B", "A & B", "199?", "SNK", "imperfect", "cartridge"});
        QString text = QString::fromStdString(storeText(sample.store.records));
        static const QRegularExpression uuid(
            QStringLiteral("<UUID>[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}</UUID>"));
        QVERIFY(uuid.match(text).hasMatch());
        text.replace(uuid, QStringLiteral("<UUID></UUID>"));
        QCOMPARE(text,
                 QString::fromUtf8("<?xml version=\"1.0\"?>\n"
                                   "<!DOCTYPE database SYSTEM \"file:///System/Library/DTDs/CoreData.dtd\">\n"
                                   "\n"
                                   "<database>\n"
                                   "<databaseInfo>\n"
                                   "<version>134481920</version>\n"
                                   "<UUID></UUID>\n"
                                   "<nextObjectID>103</nextObjectID>\n"
                                   "<metadata></metadata>\n"
                                   "</databaseInfo>\n"
                                   "<object type=\"MAME\" id=\"z102\">\n"
                                   "<attribute name=\"type\" type=\"string\">game</attribute>\n"
                                   "<attribute name=\"name\" type=\"string\">puckman</attribute>\n"
                                   "<attribute name=\"cloneof\" type=\"string\">puckman</attribute>\n"
                                   "<attribute name=\"title\" type=\"string\">PuckMan</attribute>\n"
                                   "<attribute name=\"titlejp\" type=\"string\">パックマン</attribute>\n"
                                   "<attribute name=\"year\" type=\"string\">1980</attribute>\n"
                                   "<attribute name=\"maker\" type=\"string\">Namco</attribute>\n"
                                   "<attribute name=\"status\" type=\"string\">good</attribute>\n"
                                   "<attribute name=\"device\" type=\"string\"></attribute>\n"
                                   "</object>\n"
                                   "<object type=\"MAME\" id=\"z103\">\n"
                                   "<attribute name=\"type\" type=\"string\">bios</attribute>\n"
                                   "<attribute name=\"name\" type=\"string\">neogeo</attribute>\n"
                                   "<attribute name=\"cloneof\" type=\"string\">neogeo</attribute>\n"
                                   "<attribute name=\"title\" type=\"string\">A &amp; B</attribute>\n"
                                   "<attribute name=\"titlejp\" type=\"string\">A &amp; B</attribute>\n"
                                   "<attribute name=\"year\" type=\"string\">199?</attribute>\n"
                                   "<attribute name=\"maker\" type=\"string\">SNK</attribute>\n"
                                   "<attribute name=\"status\" type=\"string\">imperfect</attribute>\n"
                                   "<attribute name=\"device\" type=\"string\">cartridge</attribute>\n"
                                   "</object>\n"
                                   "</database>"));
    }

    void emptyStoreCountsFrom101()
    {
        const std::string text = storeText({});
        QVERIFY(text.find("<nextObjectID>101</nextObjectID>") != std::string::npos);
        const auto read = readStoreText(text);
        QVERIFY(read.has_value());
        QVERIFY(read->records.empty());
    }

    void everyFileHasAUuidOfItsOwn()
    {
        QCOMPARE_NE(storelayout::newUuid(), storelayout::newUuid());
        QCOMPARE_NE(storeText({}), storeText({}));
    }

    void absentValuesAreLeftOut()
    {
        SampleRecords sample;
        sample.add({absent, "solo", absent, "", absent, absent, absent, absent, absent});
        const std::string text = storeText(sample.store.records);
        QVERIFY(text.find("\"cloneof\"") == std::string::npos);
        QVERIFY(text.find("<attribute name=\"title\" type=\"string\"></attribute>\n") != std::string::npos);
        const auto read = readStoreText(text);
        QVERIFY(read.has_value());
        QCOMPARE(lines(read->records), lines(sample.store.records));
    }

    void whatIsWrittenIsReadTheFastWay()
    {
        SampleRecords sample;
        sample.add({"game", "a", "a", "A & B <\"'>", "日本語\r\n", "1980", "????", "good", ""});
        const std::string text = storeText(sample.store.records);
        std::string_view rest = text;
        const auto scanned = scanStore(
            [&](char* buffer, std::size_t room) {
                const std::size_t count = rest.copy(buffer, room);
                rest.remove_prefix(count);
                return static_cast<std::ptrdiff_t>(count);
            },
            text.size());
        QVERIFY(scanned.has_value());
        QCOMPARE(lines(scanned->records), lines(sample.store.records));
    }

    void randomRecordsComeBack()
    {
        RandomTexts random;
        for (int round = 0; round < 60; ++round) {
            SampleRecords sample;
            for (int i = random.number(40); i > 0; --i) {
                GameRecord record;
                for (std::string_view& value : record.values) {
                    // Every third store has absent values, so that both ways of reading take part.
                    if (round % 3 != 0 || random.number(4) != 0)
                        value = sample.store.arena.add(random.text());
                }
                sample.store.records.push_back(record);
            }
            const auto read = readStoreText(storeText(sample.store.records));
            QVERIFY(read.has_value());
            QCOMPARE(lines(read->records), lines(sample.store.records));
        }
    }

    void nothingIsWrittenThatCannotBeRead()
    {
        SampleRecords sample;
        GameRecord record;
        std::string everyByte;
        for (int byte = 0; byte < 256; ++byte)
            everyByte += static_cast<char>(static_cast<unsigned char>(byte));
        everyByte += "\xEF\xBF\xBF";
        for (std::string_view& value : record.values)
            value = sample.store.arena.add(everyByte);
        sample.store.records.push_back(record);
        const auto read = readStoreText(storeText(sample.store.records));
        QVERIFY2(read.has_value(), read ? "" : read.error().key);
        QCOMPARE(read->records.size(), std::size_t(1));
        // And what was read is written and read without further loss.
        const auto again = readStoreText(storeText(read->records));
        QVERIFY(again.has_value());
        QCOMPARE(lines(again->records), lines(read->records));
    }
};

TESSERA_TEST(StoreWriterTest);
#include "storewritertest.moc"
