#include "catalogue/search/folding.h"
#include "catalogue/search/query.h"

#include "support/testmain.h"

#include <random>

using namespace tessera;

namespace {

QString kindName(TermKind kind)
{
    for (const SearchKey& key : searchKeys) {
        if (key.kind == kind)
            return QString::fromLatin1(key.name.data(), static_cast<qsizetype>(key.name.size()));
    }
    return QStringLiteral("words");
}

QString valueText(const Term& term)
{
    static constexpr std::array ends{"", "^", "="};
    switch (term.kind) {
    case TermKind::Words:
    case TermKind::Title:
    case TermKind::Name:
    case TermKind::Parent:
    case TermKind::Maker:
    case TermKind::Device:
        return QLatin1String(ends[static_cast<std::size_t>(term.words.ends)])
            + QString::fromStdString(term.words.text);
    case TermKind::Year:
        return QStringLiteral("%1..%2").arg(term.years.first).arg(term.years.last);
    default:
        return QString::number(term.value);
    }
}

// One line a term: place, kind, value; then what is wrong with it.
QString described(const Query& query)
{
    QStringList lines;
    for (const Term& term : query.terms()) {
        QString line = QStringLiteral("%1+%2 ").arg(term.begin).arg(term.size)
            + (term.negated ? u"not " : u"") + kindName(term.kind);
        if (term.applies)
            line += u' ' + valueText(term);
        if (term.state != Term::State::Good)
            line += (term.state == Term::State::Wrong ? u" WRONG " : u" unfinished ")
                + QLatin1String(term.why->key);
        lines << line;
    }
    return lines.join(u'\n');
}

} // namespace

class QueryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void termsAreRead_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("terms");
        const auto row = [](const char* query, const char* terms) {
            QTest::newRow(query) << QString::fromUtf8(query) << QString::fromUtf8(terms);
        };
        row("", "");
        row("  \t ", "");
        row("pac", "0+3 words pac");
        row("  Street FIGHTER ", "2+6 words street\n9+7 words fighter");
        row("グラディウス　ＩＩ", "0+6 words ぐらでぃうす\n7+2 words ii");
        row("-bootleg", "0+8 not words bootleg");
        row("－bootleg", "0+8 not words bootleg");
        row("pac-man", "0+7 words pac-man");
        row("a - b", "0+1 words a\n2+1 words -\n4+1 words b");
        row("--x", "0+3 not words -x");
        row("\"exact words\"", "0+13 words =exact words");
        row("“Exact  Words”", "0+14 words =exact words");
        row("-\"exact words\" x", "0+14 not words =exact words\n15+1 words x");
        row("「ロード ファイター」 x", "0+11 words =ろど ふぁいた\n12+1 words x");
        row("『a b』", "0+5 words =a b");
        row("｢a b｣", "0+5 words =a b");
        row("-「a b」 x", "0+6 not words =a b\n7+1 words x");
        row("maker:「a b」", "0+11 maker =a b");
        // Others within them belong to the text.
        row("「a \"b\" 『c』」", "0+11 words =a \"b\" 『c』");
        row("\"a「b」\"", "0+6 words =a「b」");
        row("a「b」", "0+4 words a「b」");
        row("」a", "0+2 words 」a");
        row("14\" screen", "0+3 words 14\"\n4+6 words screen");
        row("\"a\"b", "0+3 words =a\n3+1 words b");
        row("maker:konami", "0+12 maker konami");
        row("MAKER:Konami", "0+12 maker konami");
        row("ｍａｋｅｒ：ｋｏｎａｍｉ", "0+12 maker konami");
        row("maker:\"taito corporation\" x", "0+25 maker =taito corporation\n26+1 words x");
        row("-maker:sega", "0+11 not maker sega");
        row("year:1985", "0+9 year 1985..1985");
        row("year:1985-1989", "0+14 year 1985..1989");
        row("year:1985-", "0+10 year 1985..9999");
        row("year:-1989", "0+10 year 0..1989");
        row("year:198?", "0+9 year 1980..1989");
        row("year:197?-198?", "0+14 year 1970..1989");
        row("year:１９８５～１９８９", "0+14 year 1985..1989");
        row("year:１９８５ー", "0+10 year 1985..9999");
        row("year:1985–1989", "0+14 year 1985..1989");
        row("-year:1985", "0+10 not year 1985..1985");
        row("year:85", "0+7 year 1985..1985");
        row("year:70 year:69 year:00", "0+7 year 1970..1970\n8+7 year 2069..2069\n16+7 year 2000..2000");
        row("year:19 x", "0+7 year 2019..2019\n8+1 words x");
        row("year:80s", "0+8 year 1980..1989");
        row("year:90S", "0+8 year 1990..1999");
        row("year:00s", "0+8 year 2000..2009");
        row("year:1980s", "0+10 year 1980..1989");
        row("year:85-89", "0+10 year 1985..1989");
        row("year:1985-89", "0+12 year 1985..1989");
        row("year:99-03", "0+10 year 1999..2003");
        row("year:80s-90s", "0+12 year 1980..1999");
        row("year:19-", "0+8 year 2019..9999");
        row("year:-85", "0+8 year 0..1985");
        row("year:８０ｓ", "0+8 year 1980..1989");
        row("status:good", "0+11 status 0");
        row("status:PRELIMINARY", "0+18 status 2");
        row("status:working", "0+14 status 3");
        row("title:gradius -title:\"Gradius II\"", "0+13 title gradius\n14+19 not title =gradius ii");
        row("name:Gradius", "0+12 name gradius");
        row("parent:Nemesis -parent:pong", "0+14 parent nemesis\n15+12 not parent pong");
        row("type:game", "0+9 type 0");
        row("type:device", "0+11 type 3");
        row("clone:no", "0+8 clone 0");
        row("clone:yes", "0+9 clone 1");
        row("have:yes have:no have:own have:parent", "0+8 have 3\n9+7 have 0\n17+8 have 2\n26+11 have 1");
        row("device:cdrom", "0+12 device cdrom");
        row("maker:konami year:1985-1989 status:good type:game clone:no have:yes device:cdrom -bootleg "
            "\"exact words\"",
            "0+12 maker konami\n13+14 year 1985..1989\n28+11 status 0\n40+9 type 0\n50+8 clone 0\n"
            "59+8 have 3\n68+12 device cdrom\n81+8 not words bootleg\n90+13 words =exact words");
        // Titles have colons too.
        row("man: the", "0+4 words man:\n5+3 words the");
        row("fighter:", "0+8 words fighter:");
        row("51:x", "0+4 words 51:x");
        row(":x", "0+2 words :x");
    }

    void termsAreRead()
    {
        QFETCH(QString, query);
        QFETCH(QString, terms);
        QCOMPARE(described(Query(query)), terms);
    }

    void wrongTermsAreReportedWithTheirPlace_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("terms");
        const auto row = [](const char* query, const char* terms) {
            QTest::newRow(query) << QString::fromUtf8(query) << QString::fromUtf8(terms);
        };
        row("pac marker:konami x", "0+3 words pac\n4+13 words WRONG search_near_key\n18+1 words x");
        row("pac colourofbox:konami x", "0+3 words pac\n4+18 words WRONG search_wrong_key\n23+1 words x");
        row("メーカー:コナミ", "0+8 words WRONG search_wrong_key");
        row("-foo:\"a b\" c", "0+10 not words WRONG search_wrong_key\n11+1 words c");
        row("status:bad x", "0+10 status WRONG search_wrong_value\n11+1 words x");
        row("status:bad", "0+10 status WRONG search_wrong_value");
        row("clone:maybe", "0+11 clone WRONG search_wrong_value");
        row("status:goo x", "0+10 status WRONG search_wrong_value\n11+1 words x");
        row("year:abc", "0+8 year WRONG search_wrong_year");
        row("year:19855", "0+10 year WRONG search_wrong_year");
        row("year:1985-1989-", "0+15 year WRONG search_wrong_year");
        row("year:19?5", "0+9 year unfinished search_wrong_year");
        row("year:8 x", "0+6 year WRONG search_wrong_year\n7+1 words x");
        row("year:85s", "0+8 year WRONG search_wrong_year");
        row("year:198s", "0+9 year WRONG search_wrong_year");
        row("year:1985-80", "0+12 year unfinished search_reversed_years"); // the eighties
        row("year:1985-75", "0+12 year WRONG search_reversed_years");
        row("year:1989-1985", "0+14 year WRONG search_reversed_years");
        row("maker: konami", "0+6 maker WRONG search_no_value\n7+6 words konami");
        row("maker:ー", "0+7 maker unfinished search_no_words");
        row("ー x", "0+1 words WRONG search_no_words\n2+1 words x");
        row("\"\" x", "0+2 words WRONG search_no_words\n3+1 words x");
    }

    void wrongTermsAreReportedWithTheirPlace()
    {
        QFETCH(QString, query);
        QFETCH(QString, terms);
        QCOMPARE(described(Query(query)), terms);
    }

    // Nothing that is typed on its way to a good term flashes as an error.
    void halfTypedTermsAreUnfinished_data()
    {
        QTest::addColumn<QString>("query");
        for (const char* query : {"maker:konami",     "year:1985-1989",
                                  "year:-1989",       "year:198?",
                                  "status:imperfect", "type:mechanical",
                                  "clone:no",         "year:80s",
                                  "year:1980s",       "year:85-89",
                                  "year:1985-80s",    "status:working",
                                  "title:gradius",    "name:gradius",
                                  "parent:nemesis",   "have:parent",
                                  "device:cdrom",     "-bootleg",
                                  "\"exact words\"",  "maker:\"taito corporation\"",
                                  "-maker:\"a b\"",   "street -fighter: year:1985"})
            QTest::newRow(query) << QString::fromUtf8(query);
    }

    void halfTypedTermsAreUnfinished()
    {
        QFETCH(QString, query);
        for (qsizetype size = 1; size <= query.size(); ++size) {
            const Query begun(query.left(size));
            for (const Term& term : begun.terms())
                QVERIFY2(term.state != Term::State::Wrong, qPrintable(query.left(size)));
        }
        const Query whole(query);
        for (const Term& term : whole.terms())
            QCOMPARE(term.state, Term::State::Good);
    }

    void whatIsUnfinishedApplies_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("terms");
        const auto row = [](const char* query, const char* terms) {
            QTest::newRow(query) << QString::fromUtf8(query) << QString::fromUtf8(terms);
        };
        row("maker:", "0+6 maker unfinished search_no_value");
        row("year:19", "0+7 year unfinished search_wrong_year");
        row("year:8", "0+6 year unfinished search_wrong_year");
        row("year:1985-2", "0+11 year unfinished search_wrong_year");
        row("year:20", "0+7 year unfinished search_wrong_year");
        row("title:", "0+6 title unfinished search_no_value");
        row("title:\"road fi", "0+14 title ^road fi unfinished search_open_quote");
        row("status:w", "0+8 status unfinished search_wrong_value");
        row("year:1985-19", "0+12 year unfinished search_wrong_year");
        row("year:-", "0+6 year unfinished search_wrong_year");
        row("status:go", "0+9 status unfinished search_wrong_value");
        row("-", "0+1 words unfinished search_no_words");
        row("\"", "0+1 words unfinished search_no_words");
        // An open quotation mark searches for what is there already.
        row("\"exact wo", "0+9 words ^exact wo unfinished search_open_quote");
        row("「exact wo", "0+9 words ^exact wo unfinished search_open_quote");
        row("maker:\"taito co", "0+15 maker ^taito co unfinished search_open_quote");
    }

    void whatIsUnfinishedApplies()
    {
        QFETCH(QString, query);
        QFETCH(QString, terms);
        QCOMPARE(described(Query(query)), terms);
    }

    void aReasonNamesWhatWouldBeRight()
    {
        const Query query(u"status:bad foo:bar");
        QCOMPARE(query.terms()[0].why->arguments,
                 (QStringList{QStringLiteral("bad"), QStringLiteral("status"),
                              QStringLiteral("good, imperfect, preliminary, working")}));
        QCOMPARE(query.terms()[1].why->arguments,
                 (QStringList{QStringLiteral("foo"),
                              QStringLiteral("title, name, maker, year, status, type, parent, clone, have, "
                                             "device")}));
    }

    void anUnknownKeyNamesTheNearest_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QString>("nearest"); // none where it is empty
        const auto row = [](const char* key, const char* nearest) {
            QTest::newRow(key) << QString::fromUtf8(key) << QString::fromUtf8(nearest);
        };
        row("makr", "maker");
        row("MARKER", "maker");
        row("mkaer", "maker");
        row("makers", "maker");
        row("tilte", "title");
        row("nme", "name");
        row("yaer", "year");
        row("years", "year");
        row("stauts", "status");
        row("typ", "type");
        row("parnet", "parent");
        row("clones", "clone");
        row("divice", "device");
        row("manufacturer", "maker"); // what others call it
        row("romset", "name");
        row("colourofbox", "");
        row("genre", "");
        row("foo", "");
        row("at", "");
        row("x", "");
        row("メーカー", "");
    }

    void anUnknownKeyNamesTheNearest()
    {
        QFETCH(QString, key);
        QFETCH(QString, nearest);
        const Query query(QString(key + u":x"));
        QCOMPARE(query.terms()[0].state, Term::State::Wrong);
        const Failure& why = query.terms()[0].why.value();
        QCOMPARE(QLatin1String(why.key),
                 nearest.isEmpty() ? QLatin1String("search_wrong_key") : QLatin1String("search_near_key"));
        QCOMPARE(why.arguments.front(), key);
        QCOMPARE(why.arguments.value(2), nearest);
    }

    void onlyWordsRank()
    {
        QVERIFY(Query(u"").isEmpty());
        QVERIFY(Query(u"maker: ").isEmpty());
        QVERIFY(Query(u"foo:bar").isEmpty());
        QVERIFY(!Query(u"maker:x").isEmpty());
        QVERIFY(!Query(u"maker:x -y").ranks());
        QVERIFY(Query(u"maker:x y").ranks());
        QVERIFY(Query(u"title:x").ranks());
        QVERIFY(Query(u"name:x").ranks());
        QVERIFY(!Query(u"-title:x").ranks());
        QVERIFY(!Query(u"parent:x").ranks());
        const Query query(u"Street maker:x -no \"Fighter II\"");
        std::vector<std::string> words;
        for (const SearchedWords* word : query.rankedWords())
            words.push_back(word->text);
        QCOMPARE(words, (std::vector<std::string>{"street", "fighter ii"}));
    }

    void whatIsWrittenAsAValueIsReadBack_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QString>("written");
        QTest::addRow("one word") << QStringLiteral("Namco") << QStringLiteral("Namco");
        QTest::addRow("with a blank") << QStringLiteral("Tai To") << QStringLiteral("\"Tai To\"");
        QTest::addRow("with a mark within") << QStringLiteral("5\"x") << QStringLiteral("5\"x");
        QTest::addRow("with a mark before") << QStringLiteral("\"x") << QStringLiteral("「\"x」");
        QTest::addRow("with marks and a blank")
            << QStringLiteral("The \"Best\" Co") << QStringLiteral("「The \"Best\" Co」");
        QTest::addRow("with two kinds of marks")
            << QStringLiteral("\"a\" 「b」") << QStringLiteral("『\"a\" 「b」』");
        QTest::addRow("with all kinds") << QStringLiteral("\"a\" 「b」『c』") << QString();
        QTest::addRow("nothing") << QString() << QString();
    }
    void whatIsWrittenAsAValueIsReadBack()
    {
        QFETCH(QString, text);
        const auto written = writtenValue(text);
        QTEST(written.value_or(QString()), "written");
        if (!written)
            return;
        const Query query(QString(u"maker:" + *written));
        QCOMPARE(query.terms().size(), 1U);
        QCOMPARE(query.terms()[0].words.text, folded(text.toStdString()));
    }

    // Every character of a query stands in a term or is a blank between them.
    void nothingIsDropped()
    {
        static constexpr std::array pieces{u"\"", u" ",  u"-",  u":",  u"maker:", u"year:",
                                           u"19", u"85", u"a",  u"ー", u"x y",    u"status:good",
                                           u"日", u"　", u"：", u"é"};
        std::mt19937 random(7);
        for (int i = 0; i < 3000; ++i) {
            QString text;
            for (unsigned j = random() % 8; j > 0; --j)
                text += QString::fromUtf16(pieces[random() % pieces.size()]);
            qsizetype end = 0;
            const Query query(text);
            for (const Term& term : query.terms()) {
                QVERIFY(term.begin >= end && term.size > 0);
                QVERIFY2(QStringView(text).sliced(end, term.begin - end).trimmed().isEmpty(),
                         qPrintable(text));
                end = term.begin + term.size;
                QVERIFY(term.applies || term.state != Term::State::Good);
            }
            QVERIFY2(QStringView(text).sliced(end).trimmed().isEmpty(), qPrintable(text));
        }
    }
};

TESSERA_TEST(QueryTest);
#include "querytest.moc"
