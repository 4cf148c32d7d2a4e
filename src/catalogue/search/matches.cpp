#include "catalogue/search/matches.h"

#include "catalogue/search/folding.h"
#include "catalogue/search/kanareading.h"
#include "catalogue/search/looseform.h"
#include "catalogue/search/romaji.h"
#include "catalogue/search/wordsearch.h"
#include "core/encodings.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tessera {

namespace {

/// A form of a text, and where in the text each of its bytes comes from.
struct TracedForm {
    std::string text;
    std::vector<Edge> edges; // one a byte
    std::vector<Matches::Range> places; // one a byte, in QChars of the text

    void add(std::string_view bytes, Edge before, Matches::Range place)
    {
        text += bytes;
        edges.resize(text.size(), Edge::None);
        places.resize(text.size(), place);
        if (!bytes.empty())
            edges[text.size() - bytes.size()] = before;
    }

    Matches::Range placeOf(std::size_t begin, std::size_t size) const
    {
        return {places[begin].begin, places[begin + size - 1].end};
    }
};

// Marks on a character, also those that folding leaves out or joins with it.
bool belongsToTheOneBefore(QChar c)
{
    return c.isMark() || c.isLowSurrogate() || QStringView(u"ー゛゜ﾞﾟｰ~～〜‐–—―−─〰").contains(c);
}

TracedForm tracedFolding(const QString& text)
{
    TracedForm form;
    for (qsizetype begin = 0; begin < text.size();) {
        qsizetype end = begin + 1;
        while (end < text.size() && belongsToTheOneBefore(text[end]))
            ++end;
        std::string signs = folded(text.sliced(begin, end - begin).toStdString());
        if (signs == " " && form.text.ends_with(' '))
            signs.clear();
        form.add(signs, Edge::None, {begin, end});
        begin = end;
    }
    return form;
}

TracedForm tracedLooseForm(const TracedForm& folded)
{
    TracedForm form;
    for (const LooseWord& word : looseWords(folded.text)) {
        const auto begin = static_cast<std::size_t>(word.source.data() - folded.text.data());
        const std::size_t size = form.text.size();
        form.add(word.text, word.before, folded.placeOf(begin, word.source.size()));
        // Else all of it stands for all of the word.
        if (word.text.size() == word.source.size())
            std::copy_n(folded.places.begin() + static_cast<std::ptrdiff_t>(begin), word.text.size(),
                        form.places.begin() + static_cast<std::ptrdiff_t>(size));
    }
    return form;
}

TracedForm tracedReading(const TracedForm& folded)
{
    TracedForm form;
    const PlacedReading reading = placedReading(folded.text);
    Edge before = Edge::Part;
    for (std::size_t i = 0; i < reading.latin.size(); ++i) {
        const char c = reading.latin[i];
        const PlacedReading::Place place = reading.places[i];
        if (c >= 'a' && c <= 'z') {
            form.add({&c, 1}, before, folded.placeOf(place.begin, place.end - place.begin));
            before = Edge::None;
        } else {
            before = Edge::Word;
            if (c == unreadSign)
                form.add({&c, 1}, before, folded.placeOf(place.begin, place.end - place.begin));
        }
    }
    return form;
}

// Japanese in Latin letters; each word of it as a whole.
TracedForm tracedRomanised(const TracedForm& loose)
{
    TracedForm form;
    for (std::size_t begin = 0; begin < loose.text.size();) {
        std::size_t end = begin + 1;
        while (end < loose.text.size() && loose.edges[end] == Edge::None)
            ++end;
        const std::string word = loose.text.substr(begin, end - begin);
        form.add(isRomaji(word) ? shortRomajiSpelling(word) : word, loose.edges[begin],
                 loose.placeOf(begin, end - begin));
        begin = end;
    }
    return form;
}

/// Gathers what is found of words in the forms of one text.
class Marking
{
public:
    explicit Marking(const QString& text)
        : m_folded(tracedFolding(text))
    {
    }

    /// In the first of the forms that hold them.
    void mark(const SearchedWords& words);
    /// Written as one, or as the initials of the text.
    void markTogether(std::span<const SearchedWords> words);
    bool isEmpty() const { return m_ranges.empty(); }
    std::vector<Matches::Range> take();

private:
    bool markLiterally(const SearchedWords& words);
    bool markIn(const TracedForm& form, std::string_view word, bool inside = false);
    void markInitials(std::string_view letters);
    void makeForms();

    TracedForm m_folded;
    bool m_hasForms = false;
    TracedForm m_loose;
    TracedForm m_reading;
    TracedForm m_romanised;
    std::vector<Matches::Range> m_ranges;
};

void Marking::makeForms()
{
    if (std::exchange(m_hasForms, true))
        return;
    m_loose = tracedLooseForm(m_folded);
    m_reading = tracedReading(m_folded);
    m_romanised = tracedRomanised(m_loose);
}

void Marking::mark(const SearchedWords& words)
{
    if (markLiterally(words) || words.ends != WordEnds::Anywhere)
        return;
    makeForms();
    const std::string loose = looseWord(words.text);
    if ((loose.size() > 1 || isNumeral(loose)) && markIn(m_loose, loose))
        return;
    const std::string reading = readingOf(words.text);
    if (!markIn(m_reading, reading, mayStandInside(words.text, reading)) && mayBeJapanese(words.text))
        markIn(m_romanised, reading);
}

void Marking::markTogether(std::span<const SearchedWords> words)
{
    makeForms();
    std::string loose;
    std::string reading;
    for (const SearchedWords& word : words) {
        const std::string form = looseWord(word.text);
        const std::string spelt = readingOf(word.text);
        loose += form;
        reading += spelt.empty() ? form : spelt;
    }
    if (words.size() > 1
        && (markIn(m_loose, loose) || markIn(m_reading, reading) || markIn(m_romanised, reading)))
        return;
    if (mayBeInitials(loose))
        markInitials(loose);
}

// Where words begin, or else anywhere.
bool Marking::markLiterally(const SearchedWords& words)
{
    const WordMatcher matcher(words);
    const std::string bytes = char{TitleMark} + m_folded.text + char{EndMark};
    std::vector<Matches::Range> inside;
    const std::size_t before = m_ranges.size();
    for (auto at = bytes.find(words.text); at != std::string::npos; at = bytes.find(words.text, at + 1)) {
        const Rank rank = matcher.rank(bytes, at);
        if (rank != Rank::None)
            (rank == Rank::Inside ? inside : m_ranges).push_back(m_folded.placeOf(at - 1, words.text.size()));
    }
    if (m_ranges.size() > before)
        return true;
    m_ranges.insert(m_ranges.end(), inside.begin(), inside.end());
    return !inside.empty();
}

bool Marking::markIn(const TracedForm& form, std::string_view word, bool inside)
{
    if (word.empty())
        return false;
    const std::size_t before = m_ranges.size();
    for (auto at = form.text.find(word); at != std::string::npos; at = form.text.find(word, at + 1)) {
        if (inside || form.edges[at] != Edge::None)
            m_ranges.push_back(form.placeOf(at, word.size()));
    }
    return m_ranges.size() > before;
}

void Marking::markInitials(std::string_view letters)
{
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    std::string initials;
    std::vector<std::size_t> places;
    bool inNumber = false;
    for (std::size_t i = 0; i < m_loose.text.size(); ++i) {
        inNumber = isDigit(m_loose.text[i]) && (inNumber || m_loose.edges[i] != Edge::None);
        if (inNumber || m_loose.edges[i] != Edge::None) {
            initials += m_loose.text[i];
            places.push_back(i);
        }
    }
    for (auto at = initials.find(letters); at != std::string::npos; at = initials.find(letters, at + 1)) {
        if (m_loose.edges[places[at]] != Edge::Part)
            continue;
        for (std::size_t i = 0; i < letters.size(); ++i)
            m_ranges.push_back(m_loose.places[places[at + i]]);
        return;
    }
}

std::vector<Matches::Range> Marking::take()
{
    std::ranges::sort(m_ranges, {}, &Matches::Range::begin);
    std::vector<Matches::Range> apart;
    for (const Matches::Range& range : m_ranges) {
        if (apart.empty() || range.begin > apart.back().end)
            apart.push_back(range);
        else
            apart.back().end = std::max(apart.back().end, range.end);
    }
    return apart;
}

bool isSearched(Field field, TermKind kind)
{
    switch (kind) {
    case TermKind::Title:
        return field == Field::Title || field == Field::Titlejp;
    case TermKind::Name:
        return field == Field::Name;
    default:
        return field == Field::Maker;
    }
}

} // namespace

Matches::Matches(const Query& query)
{
    for (const Term& term : query.terms()) {
        if (!term.applies || term.negated)
            continue;
        if (term.kind == TermKind::Words)
            m_words.push_back(term.words);
        else if (term.kind == TermKind::Title || term.kind == TermKind::Name || term.kind == TermKind::Maker)
            m_keyed.push_back(term);
    }
}

std::vector<Matches::Range> Matches::in(const QString& text, Field field) const
{
    constexpr std::array searched{Field::Name, Field::Title, Field::Titlejp, Field::Maker, Field::Year};
    if (isEmpty() || text.isEmpty() || std::ranges::find(searched, field) == searched.end())
        return {};
    Marking marking(text);
    const auto isLoose = [](const SearchedWords& each) { return each.ends == WordEnds::Anywhere; };
    if (!m_words.empty() && std::ranges::all_of(m_words, isLoose))
        marking.markTogether(m_words);
    if (marking.isEmpty())
        std::ranges::for_each(m_words, [&](const SearchedWords& words) { marking.mark(words); });
    for (const Term& term : m_keyed) {
        if (isSearched(field, term.kind))
            marking.mark(term.words);
    }
    return marking.take();
}

} // namespace tessera
