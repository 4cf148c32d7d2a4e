#include "catalogue/search/variantmaker.h"

#include "catalogue/search/kanareading.h"
#include "catalogue/search/romaji.h"

#include <algorithm>

namespace tessera {

namespace {

// A reading has nothing but letters, digits, blanks and the signs for what is left out.
LooseForm looseReading(std::string_view reading)
{
    LooseForm form;
    Edge next = Edge::Part;
    for (const char c : reading) {
        if (c == ' ' || c == partSign) {
            next = std::max(next, c == ' ' ? Edge::Word : Edge::Part);
            continue;
        }
        const bool meets = !form.text.empty() && isAsciiLetter(c) != isAsciiLetter(form.text.back());
        form.edges.push_back(next == Edge::None && meets ? Edge::Word : next);
        form.text += c;
        next = Edge::None;
    }
    return form;
}

} // namespace

void VariantMaker::begin(std::uint32_t record, std::string_view maker)
{
    m_loose.begin(record);
    m_romaji.begin(record);
    m_maker.set(maker.substr(0, maker.find(' ')));
    m_titles = 0;
}

void VariantMaker::end()
{
    m_loose.end();
    m_romaji.end();
}

void VariantMaker::add(FieldMark mark, std::string_view folded)
{
    if (mark == MakerMark)
        addAgain(m_lastMaker, mark, folded);
    else if (mark == TitleMark && m_titles < m_lastTitles.size())
        addAgain(m_lastTitles[m_titles++], mark, withoutVersion(folded));
    else
        make(mark, folded);
}

void VariantMaker::addAgain(Made& last, FieldMark mark, std::string_view folded)
{
    if (last.text == folded && last.maker == m_maker.text) {
        m_loose.repeat(last.loose);
        m_romaji.repeat(last.romaji);
        return;
    }
    const std::size_t loose = m_loose.size();
    const std::size_t romaji = m_romaji.size();
    make(mark, folded);
    last.text = folded;
    last.maker = m_maker.text;
    last.loose = {loose, m_loose.size()};
    last.romaji = {romaji, m_romaji.size()};
}

void VariantMaker::make(FieldMark mark, std::string_view folded)
{
    if (mark == TitleMark)
        return makeTitles(folded);
    m_form.set(folded);
    m_loose.add(mark, m_form);
    addReadings(mark, folded);
    if (mark == MakerMark)
        addRomanised(mark, m_form);
}

void VariantMaker::makeTitles(std::string_view folded)
{
    const std::vector<std::string_view> titles = titlesProper(folded);
    const FieldMark mark = titles.size() > 1 ? AlternativeMark : TitleMark;
    for (const std::string_view title : titles) {
        m_form.set(title);
        m_form.beginPartBehind(m_maker);
        m_loose.add(mark, m_form);
        addReadings(mark, title);
        addRomanised(RomanisedMark, m_form);
        for (const std::string& letters : initials(m_form))
            m_loose.add(InitialsMark, letters);
    }
}

void VariantMaker::addReadings(FieldMark mark, std::string_view folded)
{
    for (const std::string& reading : romajiReadings(folded))
        m_romaji.add(mark, looseReading(reading));
}

// Where one of its words reads like Japanese.
void VariantMaker::addRomanised(FieldMark mark, const LooseForm& words)
{
    const std::string_view text = words.text;
    const auto wordAt = [&](std::size_t begin) { return text.substr(begin, words.wordEnd(begin) - begin); };
    bool isJapanese = false;
    for (std::size_t at = 0; at < text.size() && !isJapanese; at = words.wordEnd(at))
        isJapanese = readsLikeJapanese(wordAt(at));
    if (!isJapanese)
        return;
    LooseForm form;
    for (std::size_t at = 0; at < text.size(); at = words.wordEnd(at)) {
        const std::string_view word = wordAt(at);
        form.append(isRomaji(word) ? shortRomajiSpelling(word) : word, words.edges[at]);
    }
    m_romaji.add(mark, form);
}

} // namespace tessera
