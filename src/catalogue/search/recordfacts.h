#pragma once

#include "catalogue/gamerecord.h"
#include "catalogue/nameset.h"
#include "catalogue/search/yearrange.h"

#include <array>
#include <functional>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

namespace tessera {

enum class GameType : std::uint8_t { Game, Bios, Mechanical, Device, Other };
enum class GameStatus : std::uint8_t { Good, Imperfect, Preliminary, Other };

/// The values that a record's type and status may have, in the same order. Any other value counts as Other.
inline constexpr std::array<std::string_view, 4> typeValues{"game", "bios", "mechanical", "device"};
inline constexpr std::array<std::string_view, 3> statusValues{"good", "imperfect", "preliminary"};

/// What terms and chips ask of a record, as numbers.
struct RecordFacts {
    YearRange years = unknownYear;
    std::uint32_t device = 0; ///< place in the facts' list of devices
    GameType type = GameType::Other;
    GameStatus status = GameStatus::Other;
    bool parent = false; ///< no clone of another set
    std::size_t family = 0; ///< the same number for all sets of one parent
    bool favorite = false;
    bool isCopied = false; ///< a bootleg, or somebody's changed version
    bool hasTitlejp = false; ///< a Japanese title that is not the English one

    /// Well enough to be played.
    bool works() const { return status == GameStatus::Good || status == GameStatus::Imperfect; }
};

/// The facts of a content's records, gathered once.
class ContentFacts
{
public:
    ContentFacts() = default;
    explicit ContentFacts(std::span<const GameRecord> content);

    std::size_t size() const { return m_facts.size(); }
    const RecordFacts& operator[](std::size_t record) const { return m_facts[record]; }
    std::span<const RecordFacts> all() const { return m_facts; }

    /// The number of all sets of this parent.
    static std::size_t familyOf(std::string_view parent) { return std::hash<std::string_view>()(parent); }

    /// The different values of the field, folded.
    const std::vector<std::string>& devices() const { return m_devices; }

    /// Which of two records comes first that a search fits equally well: a game before anything else, the
    /// maker's own before copies, a parent before its clones, what works before what does not, what Japan has
    /// a title of its own for, then what has more clones, and is older. In so many bits, the least is the
    /// first.
    static constexpr unsigned tieBits = 15;
    const std::vector<std::uint32_t>& ties() const;
    /// The search's to take away: of a clone.
    static constexpr std::uint32_t cloneTie = 1U << 11;
    /// The search's to add: half as many clones, for a title that was found up to its dash.
    static constexpr std::uint32_t firstPartTie = 1U << 5;
    /// Of a clone the place of its parent, where there is one; of others their own.
    const std::vector<std::uint32_t>& parents() const;

    /// The user's favourites; `content` is the one that the facts are of.
    void setFavourites(NameSet favorites, std::span<const GameRecord> content);

    void replace(std::uint32_t record, const GameRecord& now);
    void remove(std::uint32_t record);
    void insert(std::uint32_t record, const GameRecord& added);

private:
    RecordFacts facts(const GameRecord& record);
    std::uint32_t device(std::string_view value);

    std::vector<RecordFacts> m_facts;
    void forget();

    mutable std::vector<std::uint32_t> m_ties; ///< none until they are asked for
    mutable std::vector<std::uint32_t> m_parents; ///< the same
    NameSet m_favourites;
    std::vector<std::string> m_devices;
    std::unordered_map<std::string, std::uint32_t> m_deviceNumbers;
};

} // namespace tessera
