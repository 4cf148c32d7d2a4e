#pragma once

#include "catalogue/search/loosebuffer.h"

#include <array>
#include <string>

namespace tessera {

/// Makes of the folded texts of records, one record behind the other, what people may type for them: loose
/// forms, initials and readings.
class VariantMaker
{
public:
    VariantMaker(LooseBuffer& loose, LooseBuffer& romaji)
        : m_loose(loose)
        , m_romaji(romaji)
    {
    }

    /// A record's texts go in between begin() and end(). Titles of systems may begin with the maker's name.
    void begin(std::uint32_t record, std::string_view maker);
    void add(FieldMark mark, std::string_view folded);
    void end();

private:
    /// What a text became. The next record often has the same one: clones stand beside their parents.
    struct Made {
        std::string text;
        std::string maker;
        LooseBuffer::Range loose;
        LooseBuffer::Range romaji;
    };

    void addAgain(Made& last, FieldMark mark, std::string_view folded);
    void make(FieldMark mark, std::string_view folded);
    void makeTitles(std::string_view folded);
    void addReadings(FieldMark mark, std::string_view folded);
    void addRomanised(FieldMark mark, const LooseForm& words);

    LooseBuffer& m_loose;
    LooseBuffer& m_romaji;
    LooseForm m_maker; // its first word
    LooseForm m_form; // kept for its room
    std::array<Made, 2> m_lastTitles; // the English and the Japanese one
    Made m_lastMaker;
    std::size_t m_titles = 0; // of the record
};

} // namespace tessera
