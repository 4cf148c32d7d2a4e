#include "catalogue/search/query.h"

#include "catalogue/search/queryparser.h"

#include <algorithm>

namespace tessera {

Query::Query(QStringView text)
    : m_terms(QueryParser(text).terms())
{
}

bool Query::isEmpty() const
{
    return std::ranges::none_of(m_terms, &Term::applies);
}

bool Query::ranks() const
{
    return !rankedWords().empty();
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
