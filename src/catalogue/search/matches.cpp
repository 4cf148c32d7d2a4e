#include "catalogue/search/matches.h"

#include "catalogue/search/tracedforms.h"
#include "catalogue/search/wordsearch.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tessera {

namespace {

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
    std::vector<TextRange> take();

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
    std::vector<TextRange> m_ranges;
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
    Spelling all;
    for (const SearchedWords& word : words)
        all.append(Spelling(word));
    if (words.size() > 1
        && (markIn(m_loose, all.loose) || markIn(m_reading, all.reading)
            || (all.isJapanese && markIn(m_romanised, all.reading))))
        return;
    if (mayBeInitials(all.loose))
        markInitials(all.loose);
}

// Where words begin, or else anywhere.
bool Marking::markLiterally(const SearchedWords& words)
{
    const WordMatcher matcher(words);
    const std::string bytes = char{TitleMark} + m_folded.text + char{EndMark};
    std::vector<TextRange> inside;
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
    std::string initials;
    std::vector<std::size_t> places;
    std::vector<bool> beginsPart;
    forEachInitial(m_loose.text, m_loose.edges, [&](std::size_t place, bool begins) {
        initials += m_loose.text[place];
        places.push_back(place);
        beginsPart.push_back(begins);
    });
    for (auto at = initials.find(letters); at != std::string::npos; at = initials.find(letters, at + 1)) {
        if (!beginsPart[at])
            continue;
        for (std::size_t i = 0; i < letters.size(); ++i)
            m_ranges.push_back(m_loose.places[places[at + i]]);
        return;
    }
}

std::vector<TextRange> Marking::take()
{
    std::ranges::sort(m_ranges, {}, &TextRange::begin);
    std::vector<TextRange> apart;
    for (const TextRange& range : m_ranges) {
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

std::vector<TextRange> Matches::in(const QString& text, Field field) const
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
