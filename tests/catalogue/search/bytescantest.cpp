#include "catalogue/search/bytescan.h"

#include "support/testmain.h"

#include <random>

using namespace tessera;

namespace {

std::vector<std::size_t> scanned(std::string_view text, std::string_view word, const ByteCounts& counts)
{
    std::vector<std::size_t> places;
    forEachPlace(text, word, counts, [&](std::size_t place) { places.push_back(place); });
    return places;
}

std::vector<std::size_t> found(std::string_view text, std::string_view word)
{
    std::vector<std::size_t> places;
    for (auto at = text.find(word); at != std::string_view::npos; at = text.find(word, at + 1))
        places.push_back(at);
    return places;
}

} // namespace

class ByteScanTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyPlaceIsFoundInOrder()
    {
        std::mt19937 random(3);
        for (int i = 0; i < 20'000; ++i) {
            ByteCounts counts{};
            std::string text(random() % 300, '\0');
            for (char& c : text) {
                c = static_cast<char>("ab\xE3"[random() % (1 + random() % 3)]);
                ++counts[static_cast<unsigned char>(c)];
            }
            std::string word(1 + random() % 5, '\0');
            for (char& c : word)
                c = static_cast<char>("ab\xE3"[random() % 3]);
            QCOMPARE(scanned(text, word, counts), found(text, word));
        }
    }

    void wordsLongerThanTheTextAreNowhere()
    {
        QCOMPARE(scanned("abc", "abcd", {}), std::vector<std::size_t>());
        QCOMPARE(scanned("", "a", {}), std::vector<std::size_t>());
    }

    void theRarestBytesAreTaken()
    {
        ByteCounts counts{};
        counts['a'] = 9;
        counts['b'] = 1;
        counts['c'] = 5;
        const RareBytes rare("acaba", counts);
        QCOMPARE(rare.first, std::size_t(3));
        QCOMPARE(rare.second, std::size_t(1));
        QCOMPARE(RareBytes("a", counts).second, std::size_t(0));
    }
};

TESSERA_TEST(ByteScanTest);
#include "bytescantest.moc"
