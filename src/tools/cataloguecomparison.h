#pragma once

#include "catalogue/gamerecord.h"

#include <QStringList>

#include <array>
#include <span>
#include <string>
#include <vector>

namespace tessera {

/// What became of one machine from one catalogue to another.
struct MachineChange {
    enum class Kind : std::uint8_t { Added, Gone, Renamed, Status };
    static constexpr std::size_t kindCount = 4;

    Kind kind;
    std::string name; ///< the new one, if there is one
    std::string title;
    std::string before; ///< its old name, or its old status
    std::string after; ///< its new status
    bool isFavourite = false;
};

/// What differs between two catalogues, by kind, each kind in the order of the set names.
struct CatalogueComparison {
    std::vector<MachineChange> changes;
    std::array<std::size_t, MachineChange::kindCount> counts{};
    std::size_t favourites = 0; ///< how many of the changes are of favourites

    std::size_t count(MachineChange::Kind kind) const { return counts[static_cast<std::size_t>(kind)]; }
};

/// A machine is found again by its set name, and a renamed one by title, maker and year together.
/// `favourites` are set names.
CatalogueComparison compareCatalogues(std::span<const GameRecord> before, std::span<const GameRecord> after,
                                      const QStringList& favourites = {});

/// One sentence or two with the numbers.
QString comparisonSummary(const CatalogueComparison& comparison);

/// One change in the words of a row beside the set's name; `withKind` says also whether it came or went.
QString changeText(const MachineChange& change, bool withKind);

/// The changes, one a line under a heading for each kind; those of favourites first. Empty where there are
/// none.
QString comparisonText(const CatalogueComparison& comparison);

} // namespace tessera
