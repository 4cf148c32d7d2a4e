#include "catalogue/search/matches.h"

#include "support/testmain.h"

using namespace tessera;

namespace {

// The text with brackets around what is marked.
QString marked(const QString& text, const QString& query, Field field = Field::Title)
{
    QString out = text;
    const std::vector<TextRange> ranges = Matches(Query(query)).in(text, field);
    for (auto range = ranges.rbegin(); range != ranges.rend(); ++range)
        out.insert(range->end, u']').insert(range->begin, u'[');
    return out;
}

} // namespace

/// What is shown of why a record was found.
class MatchesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void whatWasFoundIsMarked_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("text");
        const auto row = [](const char* query, const char* text) {
            QTest::addRow("%s: %s", query, text) << QString::fromUtf8(query) << QString::fromUtf8(text);
        };
        row("pac", "[Pac]-Man (Midway)");
        row("man", "Pac-[Man] & Superman"); // where a word begins, if there is one
        row("perm", "Pac-Man & Su[perm]an"); // or else within one
        row("a", "Pac-Man & [A]lien");
        row("pac mid", "[Pac]-Man ([Mid]way)");
        row("pacman", "[Pac-Man] (Midway)"); // without punctuation
        row("street fighter", "[Street Fighter] II");
        row("fighter street", "[Street] [Fighter] II");
        row("sf 2", "[SF II] Turbo"); // numerals
        row("fighter 2", "Street [Fighter II]");
        row("ii", "Street Fighter [II]");
        row("and", "Dungeons [&] Dragons"); // an ampersand is a word
        row("prologica", "[Prológica] (Brasil)");
        row("mvc", "[M]arvel [V]s. [C]apcom: Clash");
        row("mvc2", "[M]arvel [V]s. [C]apcom [2]: Clash");
        row("グラディ", "[グラディ]ウスIII");
        row("ぐらでぃ", "[グラディ]ウスIII");
        row("guradi", "[グラディ]ウスIII");
        row("guradiusu 3", "[グラディウスIII]");
        row("raamen", "おいしい[ラーメン]");
        row("tokyo", "[とうきょう]ドーム");
        row("ドーム", "とうきょう[ドーム]");
        row("ﾊﾟｯｸ", "[パック]マン");
        row("パック", "[ﾊﾟｯｸ]ﾏﾝ");
        row("pakku man", "[パックマン] プラス");
        row("バンパイア", "[ヴァンパイア] ハンター");
        row("ryuko no ken", "[Ryuuko no Ken] (Japan)");
        row("dodonpati", "[DoDonPachi] (World)");
        row("\"man\"", "Pac-[Man] & Superman"); // whole words only
        row("\"ma\"", "Pac-Man");
        row("-pac man", "Pac-[Man]"); // what is left out is not there
        row("year:1985 pac", "[Pac]-Man");
        row("", "Pac-Man");
        row("<b>", "Bold [<b>] of a [<b>]");
    }

    void whatWasFoundIsMarked()
    {
        QFETCH(QString, query);
        QFETCH(QString, text);
        QCOMPARE(marked(QString(text).remove(u'[').remove(u']'), query), text);
    }

    void makersAreMarkedWhereTheyStand()
    {
        QCOMPARE(marked(QStringLiteral("Konami"), QStringLiteral("maker:kona"), Field::Maker),
                 QStringLiteral("[Kona]mi"));
        QCOMPARE(marked(QStringLiteral("Konami GT"), QStringLiteral("maker:kona")),
                 QStringLiteral("Konami GT"));
        QCOMPARE(marked(QStringLiteral("Konami"), QStringLiteral("kona"), Field::Maker),
                 QStringLiteral("[Kona]mi"));
    }

    void keyedWordsAreMarkedInTheirFieldsOnly()
    {
        QCOMPARE(marked(QStringLiteral("Pac-Man"), QStringLiteral("title:pacman")),
                 QStringLiteral("[Pac-Man]"));
        QCOMPARE(marked(QStringLiteral("パックマン"), QStringLiteral("title:pakku"), Field::Titlejp),
                 QStringLiteral("[パック]マン"));
        QCOMPARE(marked(QStringLiteral("pacman"), QStringLiteral("title:pacman"), Field::Name),
                 QStringLiteral("pacman"));
        QCOMPARE(marked(QStringLiteral("pacman"), QStringLiteral("name:pac"), Field::Name),
                 QStringLiteral("[pac]man"));
        QCOMPARE(marked(QStringLiteral("Pac-Man"), QStringLiteral("name:pac")), QStringLiteral("Pac-Man"));
    }

    void whatIsNotSearchedIsNotMarked()
    {
        QCOMPARE(marked(QStringLiteral("good"), QStringLiteral("good"), Field::Status),
                 QStringLiteral("good"));
        QCOMPARE(marked(QStringLiteral("1985"), QStringLiteral("1985"), Field::Year),
                 QStringLiteral("[1985]"));
    }
};

TESSERA_TEST(MatchesTest);
#include "matchestest.moc"
