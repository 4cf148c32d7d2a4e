#include "catalogue/search/hiddenset.h"

#include "catalogue/recorddictionary.h"
#include "catalogue/samplerecords.h"
#include "catalogue/search/gamesearch.h"
#include "support/testmain.h"

using namespace tessera;
using namespace tessera::test;

class HiddenSetTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aSetNameThatIsTypedAndHiddenIsNamed_data()
    {
        QTest::addColumn<QString>("query");
        QTest::addColumn<QString>("hidden"); // the set, and the term that hides it
        const auto row = [](const char* query, const char* hidden) {
            QTest::newRow(query) << QString::fromUtf8(query) << QString::fromUtf8(hidden);
        };
        row("gradius -japan", "gradius -japan");
        row("-japan GRADIUS", "gradius -japan");
        row("pac man -midway", "pacman -midway");
        row("gradius -world -maker:konami", "gradius -maker:konami");
        row("gradius -\"gradius japan\" -status:good", "gradius -status:good");
        row("gradius maker:konami -japan", "gradius -japan");
        // It is not typed, not there, or not hidden.
        row("gradiu -japan", "");
        row("-japan", "");
        row("gradius", "");
        row("gradius -world", "");
        row("gradius -", "");
        row("\"pac man\" -midway", "");
        // Without the term it would not be found either.
        row("gradius maker:sega -japan", "");
        row("gradius status:bad -japan", "gradius -japan");
    }

    void aSetNameThatIsTypedAndHiddenIsNamed()
    {
        QFETCH(QString, query);
        SampleRecords sample;
        sample.add(
            {"game", "gradius", "nemesis", "Gradius (Japan)", "グラディウス", "1985", "Konami", "good", ""});
        sample.add({"game", "gradius3", "gradius3", "Gradius III (World)", "", "1989", "Konami", "good", ""});
        sample.add(
            {"game", "pacman", "puckman", "Pac-Man (Midway)", "パックマン", "1980", "Midway", "good", ""});
        GameSearch search(sample.store.records);
        search.take(SearchTexts::fold(search.unfolded()));
        const Query asked(query);
        const std::optional<HiddenSet> found = hiddenSet(search, asked);
        QString hidden;
        if (found)
            hidden = fieldText(sample.store.records[found->record][Field::Name]) + u' '
                + query.sliced(found->by->begin, found->by->size);
        QTEST(hidden, "hidden");
    }
};

TESSERA_TEST(HiddenSetTest);
#include "hiddensettest.moc"
