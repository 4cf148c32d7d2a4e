#pragma once

#include "catalogue/search/looseform.h"

#include <QString>

#include <string>
#include <vector>

namespace tessera {

/// A place in a text, in QChars.
struct TextRange {
    qsizetype begin;
    qsizetype end;

    bool operator==(const TextRange&) const = default;
};

/// A form of a text, and where in the text each of its bytes comes from.
struct TracedForm {
    std::string text;
    std::vector<Edge> edges; // one a byte
    std::vector<TextRange> places; // one a byte, in QChars of the text

    void add(std::string_view bytes, Edge before, TextRange place)
    {
        text += bytes;
        edges.resize(text.size(), Edge::None);
        places.resize(text.size(), place);
        if (!bytes.empty())
            edges[text.size() - bytes.size()] = before;
    }

    TextRange placeOf(std::size_t begin, std::size_t size) const
    {
        return {places[begin].begin, places[begin + size - 1].end};
    }
};

TracedForm tracedFolding(const QString& text);
/// Of a folded form.
TracedForm tracedLooseForm(const TracedForm& folded);
TracedForm tracedReading(const TracedForm& folded);
/// Of a loose form: Japanese in Latin letters; each word of it as a whole.
TracedForm tracedRomanised(const TracedForm& loose);

} // namespace tessera
