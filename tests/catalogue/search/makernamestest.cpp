#include "catalogue/search/makernames.h"
#include "support/testmain.h"

using namespace tessera;

class MakerNamesTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void makersThatBeginLikeATextAreFound_data()
    {
        QTest::addColumn<QString>("begun");
        QTest::addColumn<QString>("makers");
        const auto row
            = [](const char* begun, const char* makers) { QTest::addRow("%s", begun) << begun << makers; };
        row("", "Sega|Namco|Konami (Bally/Midway license)|Prológica|Taito Corporation|ナムコ");
        row("se", "Sega");
        row("SE", "Sega");
        row("ｎａ", "Namco");
        row("bal", "Konami (Bally/Midway license)");
        row("mid", "Konami (Bally/Midway license)");
        row("prolo", "Prológica");
        row("taito corp", "Taito Corporation");
        row("corp", "Taito Corporation");
        row("ﾅﾑ", "ナムコ");
        row("なむ", "ナムコ");
        row("ega", "");
        row("taitoc", "");
    }
    void makersThatBeginLikeATextAreFound()
    {
        QFETCH(QString, begun);
        QTEST(names().beginningWith(begun, 10).join(u'|'), "makers");
    }

    void theCommonestAreKept()
    {
        QCOMPARE(names().beginningWith(QString(), 2).join(u'|'), QStringLiteral("Sega|Namco"));
    }

private:
    static MakerNames names()
    {
        std::vector<GameRecord> records;
        for (const char* maker : {"Prológica", "Namco", "Sega", "Konami (Bally/Midway license)", "Sega", "",
                                  "Taito Corporation", "Namco", "ナムコ", "Sega"}) {
            GameRecord record;
            record[Field::Maker] = maker;
            records.push_back(record);
        }
        return MakerNames(records);
    }
};

TESSERA_TEST(MakerNamesTest);
#include "makernamestest.moc"
