#include "catalogue/search/chips.h"

namespace tessera {

bool letsThrough(Chip chip, const RecordFacts& facts, Have have)
{
    switch (chip) {
    case Chip::All:
        return true;
    case Chip::Games:
        return facts.type == GameType::Game;
    case Chip::HaveRom:
        return have != Have::Missing;
    case Chip::Working:
        return facts.status == GameStatus::Good;
    case Chip::Playable:
        return facts.works();
    case Chip::Parents:
        return facts.parent;
    case Chip::Bios:
        return facts.type == GameType::Bios;
    case Chip::Favorites:
        return facts.favorite;
    }
    return true;
}

ChipCounts countChips(const ContentFacts& facts, std::span<const Have> haves, const RecordSet* within)
{
    ChipCounts counts{};
    for (std::uint32_t record = 0; record < facts.size(); ++record) {
        if (within != nullptr && !within->contains(record))
            continue;
        const Have have = haves.empty() ? Have::Missing : haves[record];
        for (std::size_t i = 0; i < chips.size(); ++i)
            counts[i] += letsThrough(chips[i].chip, facts[record], have) ? 1 : 0;
    }
    return counts;
}

} // namespace tessera
