#include "catalogue/search/folding.h"

#include "catalogue/samplerecords.h"
#include "support/testmain.h"

#include <array>

using namespace tessera;

class FoldingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Texts of ordinary signs take a short way, which an accent closes.
    void bothWaysOfFoldingAgree()
    {
        constexpr std::array<std::pair<char32_t, char32_t>, 4> ranges{
            {{U' ', U'~'}, {U'ぁ', U'ヿ'}, {U'一', U'乿'}, {U'鿀', U'鿿'}}};
        for (const auto& [first, last] : ranges) {
            for (char32_t c = first; c <= last; ++c) {
                const std::u32string signs{U'か', c, U'-', c, U'ー', U'x'};
                const std::string text
                    = QString::fromUcs4(signs.data(), static_cast<qsizetype>(signs.size())).toStdString();
                QCOMPARE(folded(text) + " e", folded(text + " é"));
            }
        }
    }

    void whatPeopleTakeForTheSameTextFoldsAlike_data()
    {
        QTest::addColumn<QString>("one");
        QTest::addColumn<QString>("other");
        const auto row = [](const char* name, const char* one, const char* other) {
            QTest::newRow(name) << QString::fromUtf8(one) << QString::fromUtf8(other);
        };
        row("upper and lower case", "PAC-Man", "pac-man");
        row("case outside ASCII", "ÜBER Ωmega Ж", "über ωMEGA ж");
        row("sharp s", "Straße", "STRASSE");
        row("accents", "Prológica Åkesson Mühlhausen", "Prologica Akesson Muhlhausen");
        row("a combining accent", "Pro\xCC\x81l", "Pról");
        row("letters that are no accented ones", "Røde Łódź Œuvre", "rode lodz oeuvre");
        row("full width", "ＰＡＣ－ＭＡＮ　１９８０！", "pac-man 1980!");
        row("half width", "ﾊﾟｯｸﾏﾝ", "パックマン");
        row("half width, voiced", "ｸﾞﾗﾃﾞｨｳｽ", "グラディウス");
        row("hiragana and katakana", "ぱっくまん", "パックマン");
        row("iteration marks", "ヽヾ", "ゝゞ");
        row("vu", "ヴ", "ゔ");
        row("a voiced mark of its own", "カ゛ハ゜", "ガパ");
        row("a combining voiced mark", "カ\xE3\x82\x99", "ガ");
        row("the long vowel mark", "ゲーム", "ゲム");
        row("the same of half width", "ｹﾞｰﾑ", "ゲム");
        row("a wave for it", "ら〜めん", "らめん");
        row("a tilde of full width for it", "ら～めん", "らめん");
        row("a dash for it", "ゲ―ム", "ゲム");
        row("twice", "うおーー〜", "うお");
        row("signs of full width", "（日本版）", "(日本版)");
        row("Roman numerals", "グラディウスⅡ", "グラディウスII");
        row("a middle dot", "ザ・ガン", "ザ ガン");
        row("the same of half width", "ザ･ガン", "ザ ガン");
        row("curly quotes", "‘96 Ghosts’n “x”", "'96 ghosts'n \"x\"");
        row("control characters",
            "a\tb\nc\x01"
            "d",
            "a b c d");
        row("a blank of full width", "a　b", "a b");
        row("a soft hyphen is not there", "soft\xC2\xADware", "software");
        row("a joiner is not there",
            "a\xE2\x80\x8D"
            "b",
            "ab");
    }

    void whatPeopleTakeForTheSameTextFoldsAlike()
    {
        QFETCH(QString, one);
        QFETCH(QString, other);
        QCOMPARE(folded(one.toStdString()), folded(other.toStdString()));
        QVERIFY(!folded(one.toStdString()).empty());
    }

    void whatIsNotTheSameStaysApart_data()
    {
        QTest::addColumn<QString>("one");
        QTest::addColumn<QString>("other");
        const auto row = [](const char* name, const char* one, const char* other) {
            QTest::newRow(name) << QString::fromUtf8(one) << QString::fromUtf8(other);
        };
        row("voiced and plain", "ガ", "カ");
        row("voiced and plain of half width", "ｶﾞ", "ｶ");
        row("half voiced and voiced", "パ", "バ");
        row("small and large kana", "ャ", "ヤ");
        row("a dash behind a letter", "x―y", "xy");
        row("a wave behind a kanji", "東〜京", "東京");
        row("one and the long vowel mark", "一", "ー");
        row("kanji", "日", "目");
    }

    void whatIsNotTheSameStaysApart()
    {
        QFETCH(QString, one);
        QFETCH(QString, other);
        QVERIFY(folded(one.toStdString()) != folded(other.toStdString()));
    }

    void foldedFormsAreExact_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("form");
        const auto row = [](const char* text, const char* form) {
            QTest::newRow(text) << QString::fromUtf8(text) << QString::fromUtf8(form);
        };
        row("", "");
        row("Gradius III (World)", "gradius iii (world)");
        row("@[`{Az", "@[`{az");
        row("グラディウスIII -伝説から神話へ", "ぐらでぃうすiii -伝説から神話へ");
        row("ストリートファイターⅡ’", "すとりとふぁいたii'");
        row("한글", "한글");
        row("ー", "");
    }

    void foldedFormsAreExact()
    {
        QFETCH(QString, text);
        QFETCH(QString, form);
        QCOMPARE(QString::fromStdString(folded(text.toStdString())), form);
    }

    void foldingTwiceChangesNothing()
    {
        test::RandomTexts random;
        static constexpr std::array pieces{
            "Ａ",           "é", "ﾞ", "ﾟ",  "゛", "カ", "は", "ー", "〜", "～", "―", "ﾊ", "\xCC\x81",
            "\xE3\x82\x99", "ß", "Ⅳ", "・", "日", "x",  " ",  "한", "ヴ"};
        for (int i = 0; i < 5000; ++i) {
            std::string text;
            for (int j = random.number(8); j > 0; --j)
                text += pieces[static_cast<std::size_t>(random.number(pieces.size()))];
            text += random.text();
            const std::string once = folded(text);
            QCOMPARE(folded(once), once);
            QVERIFY(std::ranges::none_of(once, [](char c) { return c >= 0 && c < ' '; }));
        }
    }

    void brokenBytesDoNoHarm()
    {
        QCOMPARE(folded("A\xFF"
                        "B"),
                 std::string("a\xEF\xBF\xBD"
                             "b"));
        QCOMPARE(folded("\xE3\x82"), std::string("\xEF\xBF\xBD"));
    }
};

TESSERA_TEST(FoldingTest);
#include "foldingtest.moc"
