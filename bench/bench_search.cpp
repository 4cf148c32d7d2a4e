// bench_search TESSERA.XML: searching and sorting a catalogue, and the same with each record ten times, each
// against the least that it could take.

#include "rounds.h"

#include "catalogue/arrangedlist.h"
#include "catalogue/search/gamesearch.h"
#include "catalogue/storereader.h"

#include <QFile>

#include <cstdint>
#include <cstring>
#include <tuple>

namespace {

using namespace tessera;

constexpr std::array words{u"p",
                           u"a",
                           u"pa",
                           u"ar",
                           u"pac",
                           u"street",
                           u"gradius",
                           u"konami",
                           u"1985",
                           u"nowhere",
                           u"guradi",
                           u"グラディウス",
                           u"日本",
                           u"street fighter",
                           u"maker:konami year:1985-1989 status:good -bootleg"};

volatile std::size_t lastPlaces;

// memmem() is known to have no effect: a pass whose result nobody sees would be left out.
void passWithMemmem(std::string_view text, std::string_view word)
{
    std::size_t places = 0;
    const char* at = text.data();
    const char* const end = at + text.size();
    while (true) {
        const void* found = ::memmem(at, static_cast<std::size_t>(end - at), word.data(), word.size());
        if (found == nullptr)
            break;
        ++places;
        at = static_cast<const char*>(found) + 1;
    }
    lastPlaces = places;
}

void compareFilters(const GameSearch& search, const SearchTexts& texts, std::span<const GameRecord> content)
{
    ArrangedList list;
    list.setContent(content);
    for (const char16_t* word : words) {
        const Query query{QStringView(word)};
        const std::size_t count = search.find(query).records.count();
        const std::string name
            = QString::fromUtf16(word).toStdString() + " (" + std::to_string(count) + " records)";
        const auto floor = [&] {
            for (const Term& term : query.terms()) {
                if (!term.words.text.empty())
                    passWithMemmem(texts.texts().bytes(), term.words.text);
            }
        };
        bench::compare(
            "filter for " + name + " / a memmem pass for each word",
            [&] { std::ignore = search.find(query); }, floor);
        bench::compare("  and arrange", [&] { list.setFound(search.find(query)); }, floor);
    }
}

struct KeyedRow {
    std::uint64_t key;
    std::uint32_t row;
};

std::vector<KeyedRow> keyedRows(std::span<const GameRecord> content, Field field)
{
    std::vector<KeyedRow> rows;
    rows.reserve(content.size());
    for (const GameRecord& record : content) {
        char prefix[8] = {};
        record[field].copy(prefix, sizeof prefix);
        std::uint64_t key = 0;
        std::memcpy(&key, prefix, sizeof key);
        rows.push_back({__builtin_bswap64(key), static_cast<std::uint32_t>(rows.size())});
    }
    return rows;
}

void compareSorts(std::span<const GameRecord> content)
{
    ArrangedList list;
    list.setContent(content);
    for (const Field field : {Field::Name, Field::Title, Field::Titlejp, Field::Year, Field::Maker}) {
        const auto floor = [&] {
            std::vector<KeyedRow> rows = keyedRows(content, field);
            std::sort(rows.begin(), rows.end(), [&](const KeyedRow& a, const KeyedRow& b) {
                if (a.key != b.key)
                    return a.key < b.key;
                const int order = content[a.row][field].compare(content[b.row][field]);
                return order != 0 ? order < 0 : a.row < b.row;
            });
        };
        bool ascending = true;
        const std::string name(fieldName(field));
        const auto again = [&] { list.setSort(field, ascending = !ascending); };
        const auto first = [&] {
            list.forgetOrder(field);
            again();
        };
        bench::compare("sort by " + name + " / std::sort on 8-byte prefixes, ties resolved", first, floor);
        bench::compare("  the same column again", again, floor);
    }
}

void comparePreparing(std::span<const GameRecord> content, const SearchTexts& texts)
{
    const auto floor = [&] { passWithMemmem(texts.texts().bytes(), "pac"); };
    bench::compare("prepare what is ASCII / memmem pass", [&] { GameSearch search(content); }, floor);
    GameSearch search(content);
    const UnfoldedTexts unfolded = search.unfolded();
    const std::string name
        = "prepare " + std::to_string(unfolded.texts.records()) + " records, aside / memmem pass";
    bench::compare(name, [&] { std::ignore = SearchTexts::fold(unfolded); }, floor, bench::timed, 5);
    const FoldedTexts folded = SearchTexts::fold(unfolded);
    bench::compare("take over what ICU made / memmem pass", [&] { search.take(folded); }, floor);
    bench::compare("count all chips / memmem pass", [&] { std::ignore = search.chipCounts(); }, floor);
}

void measure(std::span<const GameRecord> content)
{
    SearchTexts texts(content);
    texts.take(SearchTexts::fold(texts.unfolded()));
    GameSearch search(content);
    search.take(SearchTexts::fold(search.unfolded()));
    std::printf("%zu records, %.1f MB of folded text\n", content.size(),
                static_cast<double>(texts.texts().bytes().size()) / 1e6);
    compareFilters(search, texts, content);
    compareSorts(content);
    comparePreparing(content, texts);
}

// Each record so many times, under names of its own.
StoredCatalogue repeated(const StoredCatalogue& store, int times)
{
    StoredCatalogue many;
    for (int i = 0; i < times; ++i) {
        const std::string suffix = i == 0 ? "" : std::to_string(i);
        for (const GameRecord& record : store.records) {
            GameRecord copy;
            for (std::size_t field = 0; field < fieldCount; ++field)
                copy.values[field] = many.arena.add(record.values[field]);
            copy[Field::Name] = many.arena.add(std::string(record[Field::Name]) + suffix);
            copy[Field::Cloneof] = many.arena.add(std::string(record[Field::Cloneof]) + suffix);
            many.records.push_back(copy);
        }
    }
    return many;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fputs("usage: bench_search TESSERA.XML\n", stderr);
        return 2;
    }
    const auto store = readStore(QFile::decodeName(argv[1]));
    if (!store) {
        std::fputs("bench_search: the store cannot be read\n", stderr);
        return 1;
    }
    measure(store->records);
    constexpr int times = 10;
    const StoredCatalogue many = repeated(*store, times);
    measure(many.records);
    return 0;
}
