#include "catalogue/search/tracedforms.h"

#include "catalogue/search/folding.h"
#include "catalogue/search/kanareading.h"
#include "catalogue/search/romaji.h"

#include <algorithm>

namespace tessera {

namespace {

// Marks on a character, also those that folding leaves out or joins with it.
bool belongsToTheOneBefore(QChar c)
{
    return c.isMark() || c.isLowSurrogate() || QStringView(u"ー゛゜ﾞﾟｰ~～〜‐–—―−─〰").contains(c);
}

} // namespace

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
        const bool isLetter = isAsciiLetter(c);
        before = isLetter ? before : Edge::Word;
        if (isLetter || isAsciiDigit(c) || c == unreadSign)
            form.add({&c, 1}, before, folded.placeOf(place.begin, place.end - place.begin));
        before = isLetter ? Edge::None : Edge::Word;
    }
    return form;
}

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

} // namespace tessera
