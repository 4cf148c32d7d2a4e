#include "tools/listxmlconverter.h"

#include "naiveconverter.h"
#include "randomlist.h"
#include "support/testmain.h"
#include "tools/titletable.h"

using namespace tessera;

namespace {

constexpr std::string_view titleFile = "pong\tPON & <G>\npuck\n????\tnameless\ngood\n";
// Its fields, as the rules part them: they are not asked of the table.
const std::vector<std::string> titleFields{"pong", "PON & <G>", "puck", "????", "nameless", "good"};

// In pieces of random sizes; nothing where the text is refused.
std::optional<ConvertedList> convertInPieces(const std::string& text, test::RandomList& random,
                                             const TitleTable& titles, ConversionOptions options,
                                             CandidateSearch search, bool isStream)
{
    bool shouldBeginAgain = false;
    for (const ElementName name : {ElementName::Undecided, ElementName::Game}) {
        ListxmlConverter converter(titles, options, name, search);
        std::string_view rest = text;
        bool good = true;
        while (!rest.empty() && good) {
            const std::size_t size
                = std::min(rest.size(), 1 + random.below(random.below(8) == 0 ? 5000 : 200));
            good = converter.feed(rest.substr(0, size)).has_value();
            rest.remove_prefix(size);
        }
        auto list = converter.finish();
        shouldBeginAgain = name == ElementName::Undecided && converter.shouldBeginAgain();
        if (shouldBeginAgain && !isStream)
            continue;
        return good && list ? std::optional(std::move(*list)) : std::nullopt;
    }
    return std::nullopt;
}

// Around the first byte that differs, and the whole text to try it with.
QByteArray difference(const std::string& found, const std::string& expected, const std::string& text)
{
    const auto size = std::min(found.size(), expected.size());
    const auto at
        = std::mismatch(found.begin(), found.begin() + static_cast<std::ptrdiff_t>(size), expected.begin())
              .first;
    const auto from = static_cast<std::size_t>(at - found.begin());
    return "found: " + QByteArray::fromStdString(found.substr(from, 80)).toPercentEncoding(" <>=/\"")
        + " expected: " + QByteArray::fromStdString(expected.substr(from, 80)).toPercentEncoding(" <>=/\"")
        + " text: " + QByteArray::fromStdString(text).toPercentEncoding(" <>=/\"");
}

} // namespace

class NaiveComparisonTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anyTextIsConvertedByTheRules_data()
    {
        QTest::addColumn<bool>("isStream");
        QTest::addColumn<bool>("plainSearch");
        QTest::newRow("saved") << false << false;
        QTest::newRow("saved, without vectors") << false << true;
        QTest::newRow("stream") << true << false;
        QTest::newRow("stream, without vectors") << true << true;
    }

    void anyTextIsConvertedByTheRules()
    {
        QFETCH(bool, isStream);
        QFETCH(bool, plainSearch);
        const CandidateSearch search = plainSearch ? findCandidatesPlainly : candidateSearch();
        const TitleTable titles(titleFile);
        std::size_t games = 0;
        for (unsigned seed = 1; seed <= 700; ++seed) {
            test::RandomList random(seed);
            const std::string text = random.text(10 + random.below(250));
            test::NaiveConverter naive;
            naive.options = {random.below(4) == 0, random.below(4) == 0, random.below(4) == 0};
            naive.titles = titleFields;
            naive.isStream = isStream;
            const auto list = convertInPieces(text, random, titles, naive.options, search, isStream);
            QVERIFY(list);
            const std::string store = list->text.joined();
            naive.uuid = test::uuidOf(store);
            const std::string expected = naive.convert(text);
            QVERIFY2(store == expected, difference(store, expected, text).constData());
            QCOMPARE(list->text.size(), store.size());
            QCOMPARE(list->games, naive.games);
            QVERIFY(!(list->isWhole && naive.isCutOff));
            games += list->games;
        }
        QVERIFY(games > 1000); // or the texts would try nothing
    }
};

TESSERA_TEST(NaiveComparisonTest);
#include "naivecomparisontest.moc"
