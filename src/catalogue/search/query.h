#pragma once

#include "catalogue/search/searchkeys.h"
#include "catalogue/search/wordmatcher.h"
#include "catalogue/search/yearrange.h"
#include "core/failure.h"

#include <QStringView>

#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace tessera {

/// One piece of a query: a word, words in quotation marks, or a key with its value.
struct Term {
    enum class State : std::uint8_t {
        Good,
        Unfinished, ///< at the query's end, where typing may still make it a good one
        Wrong,
    };

    qsizetype begin = 0; ///< place in the query, in QChars, with a minus before it
    qsizetype size = 0;
    qsizetype valueBegin = 0; ///< place of what stands behind the key, with its quotation marks
    bool isQuoted = false;
    bool isClosed = false; ///< by a quotation mark
    TermKind kind = TermKind::Words;
    bool negated = false;
    SearchedWords words; ///< Words, Title, Name, Maker, Parent, Device
    YearRange years; ///< Year
    std::uint8_t value = 0; ///< the others: place among the key's values
    State state = State::Good;
    std::optional<Failure> why; ///< what is missing or wrong
    bool applies = true; ///< false where there is nothing yet, or nothing sensible, to apply
};

/// What a person asks of the list: free words, words in quotation marks, and terms such as "maker:konami",
/// parted by blanks, each of them turned round by a minus. Every one must hold. A wrong term stays among the
/// terms, to be shown as wrong, and the others apply all the same.
class Query
{
public:
    Query() = default;
    explicit Query(QStringView text);
    explicit Query(std::vector<Term> terms)
        : m_terms(std::move(terms))
    {
    }

    std::span<const Term> terms() const { return m_terms; }
    /// Nothing in it applies: every record is let through.
    bool isEmpty() const;
    /// There are words to rank records by, of any field, of a title or of a set name.
    bool ranks() const;
    /// A sentence for each term that is wrong; one that is half typed is no complaint.
    QStringList complaints() const;
    /// The words of no key that are not turned round, in sequence.
    std::vector<const SearchedWords*> rankedWords() const;

private:
    std::vector<Term> m_terms;
};

/// A text as the value of a term, in quotation marks where it needs them; nothing where none would hold it.
std::optional<QString> writtenValue(const QString& text);

} // namespace tessera
