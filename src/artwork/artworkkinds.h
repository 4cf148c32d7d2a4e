#pragma once

#include "core/settingskeys.h"

#include <array>
#include <optional>

namespace tessera {

/// What a picture of a game shows.
struct ArtworkKind {
    QLatin1StringView label; ///< the same in every language
    const ChosenKey* folder;
    const ChosenKey* downloadTemplate; ///< the user's own
};

/// By the position in the pop-up, which the settings hold.
// clang-format off
inline constexpr std::array<ArtworkKind, 3> artworkKinds{{
    {QLatin1StringView("Snapshot"),       &keys::SnapPath,       &keys::snapdownloadPath},
    {QLatin1StringView("Title Snapshot"), &keys::TitlesnapPath,  &keys::titlessdownloadPath},
    {QLatin1StringView("Game Flyer"),     &keys::GameflyersPath, &keys::flyersdownloadPath},
}};

/// Which kind's folder the menu items open, by their tags; the first two are deliberately the same.
inline constexpr std::array<int, 4> kindOfFolderItem{0, 0, 1, 2};
// clang-format on

/// Null for a position behind the table.
constexpr const ArtworkKind* artworkKind(int position)
{
    const bool isKind = position >= 0 && position < static_cast<int>(artworkKinds.size());
    return isKind ? &artworkKinds[static_cast<std::size_t>(position)] : nullptr;
}

/// From the last kind on to the first.
constexpr int nextArtworkKind(int position)
{
    return artworkKind(position + 1) != nullptr ? position + 1 : 0;
}

} // namespace tessera
