#pragma once

#include "catalogue/listxmlcandidates.h"
#include "catalogue/listxmlneedles.h"
#include "catalogue/slidingwindow.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tessera {

/// How the elements of a list are called: "game" up to 2015, "machine" since.
enum class ElementName : std::uint8_t { Undecided, Game, Machine };

/// The inside of one element, and where its needles stand.
struct ListxmlElement {
    std::string_view text; ///< from after "<game " to before the end tag

    /// For each needle that a value follows, its places in `text`, rising.
    std::array<std::vector<std::size_t>, static_cast<std::size_t>(Needle::IsBios)> places;
    bool isBios = false;
    bool isMechanical = false;
    bool isDevice = false;

    /// The first place at or after `from`, or npos.
    std::size_t find(Needle needle, std::size_t from) const;
};

/// Finds the elements of a text that comes in pieces, in one pass over its bytes.
class ListxmlScanner
{
public:
    /// With an undecided name the first start tag decides.
    explicit ListxmlScanner(ElementName name, CandidateSearch search = candidateSearch());

    /// Room for the next piece of at least `count` bytes. Whatever was handed out before is void.
    std::span<char> room(std::size_t count) { return m_window.room(count); }
    /// `count` bytes were put there.
    void extend(std::size_t count) { m_window.extend(count); }
    /// There are no more pieces.
    void end();

    /// The next whole element, good until the next call; null where more text is needed.
    const ListxmlElement* next();

    /// In place of next(), once no more elements are wanted: looks the text through for what concerns the
    /// whole of it, and lets go of it.
    void passOver();

    /// From the start of the element that next() gave to the end of the text that has come.
    std::string_view textFromElement() const { return m_window.text().substr(0, textEnd()); }
    /// Inside an element whose end has not come.
    bool isInElement() const { return m_isInElement; }
    ElementName name() const { return m_name; }
    /// Elements are called "machine", but a "<game " stands somewhere.
    bool sawGame() const { return m_sawGame; }
    bool sawNul() const { return m_sawNul; }
    /// What is held of the text, its newest bytes last.
    std::string_view held() const { return m_window.text(); }

private:
    bool enterElement();
    bool finishElement();
    bool takeCandidates();
    bool takeCandidate(std::size_t place, unsigned buckets);
    bool take(const NeedleRow& row, std::size_t place);
    std::size_t findStart(std::string_view text);
    void noteNul(std::string_view passed);
    std::size_t textEnd() const;
    std::size_t scannable() const;

    SlidingWindow m_window;
    CandidateSearch m_search;
    CandidateBlock m_block{};
    ListxmlElement m_element;
    std::size_t m_scanned = 0; ///< from the window's start
    std::size_t m_afterElement = 0; ///< the whole element's end, which next() drops
    ElementName m_name;
    bool m_isInElement = false;
    bool m_hasEnded = false;
    bool m_sawGame = false;
    bool m_sawNul = false;
};

} // namespace tessera
