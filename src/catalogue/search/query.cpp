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
    return !phrase().empty();
}

std::string Query::phrase() const
{
    std::string phrase;
    for (const Term& term : m_terms) {
        if (term.kind == TermKind::Words && term.applies && !term.negated)
            phrase += (phrase.empty() ? "" : " ") + term.words.text;
    }
    return phrase;
}

} // namespace tessera
