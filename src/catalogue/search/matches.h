#pragma once

#include "catalogue/gamerecord.h"
#include "catalogue/search/query.h"
#include "catalogue/search/tracedforms.h"

#include <QString>

#include <vector>

namespace tessera {

/// Finds in the texts of found records what a query was found by, to be shown there.
class Matches
{
public:
    Matches() = default;
    explicit Matches(const Query& query);

    bool isEmpty() const { return m_words.empty() && m_keyed.empty(); }
    /// In sequence, and parted from each other.
    std::vector<TextRange> in(const QString& text, Field field) const;

private:
    std::vector<SearchedWords> m_words;
    std::vector<Term> m_keyed; // to be found in one field only
};

} // namespace tessera
