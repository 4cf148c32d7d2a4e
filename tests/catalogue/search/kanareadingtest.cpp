#include "catalogue/search/kanareading.h"

#include "catalogue/search/romaji.h"
#include "support/testmain.h"

#include <unicode/translit.h>
#include <unicode/unistr.h>

#include <memory>

using namespace tessera;

namespace {

std::string utf8(const std::u32string& text)
{
    return QString::fromUcs4(text.data(), static_cast<qsizetype>(text.size())).toStdString();
}

// A library's reading, in our spelling.
std::string readByIcu(const std::u32string& kana)
{
    UErrorCode status = U_ZERO_ERROR;
    static const std::unique_ptr<const icu::Transliterator> latin(
        icu::Transliterator::createInstance("Hiragana-Latin", UTRANS_FORWARD, status));
    icu::UnicodeString text = icu::UnicodeString::fromUTF8(utf8(kana));
    latin->transliterate(text);
    std::string out;
    text.toUTF8String(out);
    std::erase(out, '~'); // a small sign that is read on its own
    return romajiSpelling(out);
}

std::string longReading(const std::u32string& kana)
{
    const std::vector<std::string> readings = romajiReadings(utf8(kana));
    return readings.empty() ? std::string() : readings.size() == 1 ? readings.front() : readings[1];
}

bool isSmall(char32_t c)
{
    return std::u32string_view(U"ぁぃぅぇぉっゃゅょゎ").contains(c);
}

// They have a reading more.
bool isDiOrDu(char32_t c)
{
    return c == U'ぢ' || c == U'づ';
}

} // namespace

class KanaReadingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKanaIsReadAsALibraryReadsIt()
    {
        for (char32_t c = U'ぁ'; c <= U'ゔ'; ++c) {
            if (c != U'っ' && !isDiOrDu(c))
                QCOMPARE(longReading({c}), readByIcu({c}));
        }
    }

    void everyPairOfFullKanaIsReadAsALibraryReadsIt()
    {
        for (char32_t a = U'ぁ'; a <= U'ん'; ++a) {
            for (char32_t b = U'ぁ'; b <= U'ん'; ++b) {
                if (!isSmall(a) && !isSmall(b) && !isDiOrDu(a) && !isDiOrDu(b))
                    QCOMPARE(longReading({a, b}), readByIcu({a, b}));
            }
        }
    }

    void everyPalatalisedKanaIsReadAsALibraryReadsIt()
    {
        for (const char32_t a : std::u32string_view(U"きぎしじちにひびぴみり")) {
            for (const char32_t b : std::u32string_view(U"ゃゅょぇ"))
                QCOMPARE(longReading({a, b}), readByIcu({a, b}));
        }
    }

    void everyDoubledKanaIsReadAsALibraryReadsIt()
    {
        for (char32_t c = U'か'; c <= U'ろ'; ++c) {
            if (!isSmall(c) && !isDiOrDu(c))
                QCOMPARE(longReading({U'か', U'っ', c}), readByIcu({U'か', U'っ', c}));
        }
    }

    void smallKanaAreReadWithTheOnesBeforeThem_data()
    {
        QTest::addColumn<QString>("kana");
        QTest::addColumn<QString>("reading");
        const auto row = [](const char* kana, const char* reading) {
            QTest::newRow(kana) << QString::fromUtf8(kana) << QString::fromUtf8(reading);
        };
        row("ふぁ", "hua");
        row("ふぇ", "hue");
        row("ふゅ", "huyu");
        row("くぉ", "kuo");
        row("てぃ", "ti");
        row("でぃ", "di");
        row("でゅ", "dyu");
        row("てゅ", "tyu");
        row("とぅ", "tu");
        row("どぅ", "du");
        row("うぃ", "wi");
        row("うぇ", "we");
        row("うぉ", "o");
        row("いぇ", "ye");
        row("すぃ", "si");
        row("ずぃ", "zi");
        row("つぁ", "ta");
        row("つぉ", "to");
        row("ゔ", "bu");
        row("ゔぁ", "ba");
        row("ゔぉ", "bo");
        row("しぇ", "sye");
        row("じぇ", "zye");
        row("ちぇ", "tye");
        row("いゃ", "iya");
        row("まっちゃ", "mattya");
        row("さっか", "sakka");
        row("まっ", "ma");
        row("まっあ", "maa");
        row("あっま", "anma");
        row("ゕ", "ka");
    }

    void smallKanaAreReadWithTheOnesBeforeThem()
    {
        QFETCH(QString, kana);
        QFETCH(QString, reading);
        const std::vector<std::string> readings = romajiReadings(kana.toStdString());
        QCOMPARE(QString::fromStdString(readings.back()), reading);
    }

    // Otherwise what is typed would have to be spelt in a way that nobody knows.
    void everyReadingIsSpeltAsTypedWordsAre()
    {
        for (char32_t a = U'ぁ'; a <= U'ゖ'; ++a) {
            for (char32_t b = U'ぁ'; b <= U'ゖ'; ++b) {
                for (const std::string& reading : romajiReadings(utf8({a, b})))
                    QCOMPARE(romajiSpelling(reading), reading);
            }
        }
    }

    void diAndDuAreReadInBothWays()
    {
        QCOMPARE(romajiReadings("はなぢ"), (std::vector<std::string>{"hanazi", "hanadi"}));
        QCOMPARE(romajiReadings("ぢゃ"), (std::vector<std::string>{"zya", "dya"}));
    }

    void whatStandsBetweenIsNotReadAcross()
    {
        QCOMPARE(romajiReadings("か漢っ ゃか"), std::vector<std::string>{"ka\x0E yaka"});
    }

    void longVowelsAreThereOnceAndInFull()
    {
        QCOMPARE(romajiReadings("とうきょう"), (std::vector<std::string>{"tokyo", "toukyou"}));
        QCOMPARE(romajiReadings("こんな"), (std::vector<std::string>{"kona", "konna"}));
    }
};

TESSERA_TEST(KanaReadingTest);
#include "kanareadingtest.moc"
