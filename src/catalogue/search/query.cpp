#include "catalogue/search/query.h"

#include "catalogue/search/queryparser.h"

#include <algorithm>

namespace tessera {

namespace {

bool hasRanks(TermKind kind)
{
    return kind == TermKind::Words || kind == TermKind::Title || kind == TermKind::Name;
}

} // namespace

Query::Query(QStringView text)
    : m_terms(QueryParser(text).terms())
{
}

bool Query::isEmpty() const
{
    return std::ranges::none_of(m_terms, &Term::applies);
}

QStringList Query::complaints() const
{
    QStringList sentences;
    for (const Term& term : m_terms) {
        if (term.state == Term::State::Wrong && term.why)
            sentences << term.why->text();
    }
    return sentences;
}

bool Query::ranks() const
{
    return std::ranges::any_of(
        m_terms, [](const Term& term) { return term.applies && !term.negated && hasRanks(term.kind); });
}

std::vector<const SearchedWords*> Query::rankedWords() const
{
    std::vector<const SearchedWords*> words;
    for (const Term& term : m_terms) {
        if (term.kind == TermKind::Words && term.applies && !term.negated)
            words.push_back(&term.words);
    }
    return words;
}

} // namespace tessera
