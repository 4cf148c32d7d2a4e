#pragma once

#include "catalogue/search/query.h"

namespace tessera {

/// Reads a query's terms from left to right. What a Japanese keyboard types in full width (blank, colon,
/// minus, quotation mark, letters of a key) counts as the plain sign.
class QueryParser
{
public:
    explicit QueryParser(QStringView text)
        : m_text(text)
    {
    }

    std::vector<Term> terms();

private:
    /// A term's value as it was written.
    struct Value {
        QStringView text;
        bool quoted = false;
        bool open = false; ///< its closing quotation mark is missing
    };

    bool atEnd() const { return m_at == m_text.size(); }
    bool blankFollows(qsizetype at) const { return at == m_text.size() || m_text[at].isSpace(); }
    void skipBlanks();

    Term term();
    QStringView key() const;
    Value value(Term& term);

    void readWords(Term& term, const Value& value);
    void readKeyed(Term& term, const SearchKey& key, const Value& value);
    void readYears(Term& term, QStringView value);
    void readFixed(Term& term, const SearchKey& key, QStringView value);
    void refuse(Term& term, Failure why, bool mayGoOn);

    QStringView m_text;
    qsizetype m_at = 0;
};

} // namespace tessera
