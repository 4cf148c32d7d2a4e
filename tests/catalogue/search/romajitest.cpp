#include "catalogue/search/romaji.h"

#include "catalogue/search/folding.h"
#include "catalogue/search/kanareading.h"
#include "support/testmain.h"

#include <algorithm>

using namespace tessera;

namespace {

// As a search does it: whether what was typed stands anywhere in the reading.
bool finds(const QString& typed, const QString& text)
{
    const std::vector<std::string> readings = romajiReadings(folded(text.toStdString()));
    const std::string word = shortRomajiSpelling(folded(typed.toStdString()));
    return std::ranges::any_of(readings, [&](const std::string& reading) { return reading.contains(word); });
}

} // namespace

class RomajiTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void romajiFindsKana_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* typed, const char* text) {
            QTest::addRow("%s for %s", typed, text) << QString::fromUtf8(typed) << QString::fromUtf8(text);
        };
        row("guradi", "グラディウス");
        row("gurad", "グラディウスIII -伝説から神話へ");
        row("pakkuman", "パックマン (日本版 set 1)");
        row("pakkuman", "ﾊﾟｯｸﾏﾝ");
        row("pakkuman", "ぱっくまん");
        for (const char* typed : {"shinobi", "sinobi"})
            row(typed, "しのび");
        for (const char* typed : {"tsurumi", "turumi"})
            row(typed, "つるみ");
        for (const char* typed : {"fujisan", "huzisan", "huji"})
            row(typed, "ふじさん");
        for (const char* typed : {"chikara", "tikara"})
            row(typed, "ちから");
        for (const char* typed : {"janpu", "zyanpu", "jyanpu", "jampu"})
            row(typed, "ジャンプ");
        for (const char* typed : {"hanaji", "hanazi", "hanadi", "hanadji"})
            row(typed, "はなぢ");
        for (const char* typed : {"tsuzumi", "tsudumi", "tuzumi", "tudumi", "tsudzumi"})
            row(typed, "つづみ");
        for (const char* typed : {"matchi", "macchi", "matti"})
            row(typed, "マッチ");
        for (const char* typed : {"bijjubaru", "bizzyubaru"})
            row(typed, "ビッジュバル");
        for (const char* typed : {"geemu", "gemu", "ge-mu", "gēmu", "gêmu"})
            row(typed, "ゲーム");
        for (const char* typed : {"roodo", "roudo", "rodo", "ro-do"})
            row(typed, "ロード");
        for (const char* typed : {"toukyou", "tokyo", "tookyoo", "tōkyō"})
            row(typed, "とうきょう");
        for (const char* typed : {"ookami", "okami"})
            row(typed, "おおかみ");
        for (const char* typed : {"ken'ichi", "kenichi", "kennichi"})
            row(typed, "けんいち");
        for (const char* typed : {"shinbun", "shimbun", "sinbun"})
            row(typed, "しんぶん");
        for (const char* typed : {"konna", "konnna"})
            row(typed, "こんな");
        for (const char* typed : {"famikon", "huamikon"})
            row(typed, "ファミコン");
        for (const char* typed : {"vanpaia", "banpaia", "vampaia"})
            row(typed, "ヴァンパイア");
        row("boruto", "サンダーヴォルト");
        row("paatii", "パーティー");
        row("pathi", "パーティー");
        row("tumorou", "トゥモロー");
        row("wingu", "ウィング");
        row("chekka", "チェッカー");
        row("dyueru", "デュエル");
        row("kuesuto", "クエスト");
        row("umi", "のうみそ");
        row("wo", "をとめ");
        row("sekigahara", "せきがはら");
    }

    void romajiFindsKana()
    {
        QFETCH(QString, typed);
        QFETCH(QString, text);
        QVERIFY2(finds(typed, text),
                 qPrintable(QString::fromStdString(shortRomajiSpelling(folded(typed.toStdString())) + " in "
                                                   + romajiReadings(folded(text.toStdString())).front())));
    }

    // While a word is typed the list must not lose for a moment what it finds before and after.
    void everyBeginningFindsIt_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* typed, const char* text) {
            QTest::newRow(typed) << QString::fromUtf8(typed) << QString::fromUtf8(text);
        };
        row("guradiusu", "グラディウス");
        row("shinobi", "しのび");
        row("shashin", "しゃしん");
        row("tsukai", "つかい");
        row("jouji", "じょうじ");
        row("janpu", "ジャンプ");
        row("fujisan", "ふじさん");
        row("famikon", "ファミコン");
        row("vanpaia", "ヴァンパイア");
        row("toukyou", "とうきょう");
        row("ge-mu", "ゲーム");
    }

    void everyBeginningFindsIt()
    {
        QFETCH(QString, typed);
        QFETCH(QString, text);
        for (qsizetype size = 1; size <= typed.size(); ++size)
            QVERIFY2(finds(typed.left(size), text), qPrintable(typed.left(size)));
    }

    void whatIsNoKanaHasNoReading()
    {
        QVERIFY(romajiReadings("gradius").empty());
        QVERIFY(romajiReadings("").empty());
        QVERIFY(romajiReadings(folded("伝説 (日本版)")).empty());
        QVERIFY(romajiReadings(folded("Mühlhausen £5")).empty());
    }

    // "shi" is "si", but "session" does not hold it.
    void lettersAndKanjiOfTheTextAreLeftUnread()
    {
        QCOMPARE(romajiReadings(folded("グラディウスII -伝説へ (session 2)")),
                 std::vector<std::string>{"guradiusu2 /\x0E\x0Ehe  \x0E\x0E\x0E\x0E\x0E\x0E\x0E 2 "});
        QVERIFY(!finds(QStringLiteral("session"), QString::fromUtf8("グラディウス session")));
        QVERIFY(!finds(QStringLiteral("ii"), QString::fromUtf8("グラデ II")));
    }

    void differentReadingsStayApart_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* typed, const char* text) {
            QTest::newRow(typed) << QString::fromUtf8(typed) << QString::fromUtf8(text);
        };
        row("katsu", "がつ");
        row("sasin", "しゃしん");
        row("kyaku", "かく");
        row("pakuman", "パックマン");
    }

    void differentReadingsStayApart()
    {
        QFETCH(QString, typed);
        QFETCH(QString, text);
        QVERIFY(!finds(typed, text));
    }

    void onlyLettersPassForRomaji()
    {
        QVERIFY(isRomaji("guradi"));
        QVERIFY(isRomaji("ken'ichi"));
        QVERIFY(isRomaji("ge-mu"));
        QVERIFY(!isRomaji("1985"));
        QVERIFY(!isRomaji("r2d2"));
        QVERIFY(!isRomaji("-"));
        QVERIFY(!isRomaji(""));
        QVERIFY(!isRomaji("ぐら"));
    }
};

TESSERA_TEST(RomajiTest);
#include "romajitest.moc"
