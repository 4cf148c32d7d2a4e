#pragma once

#include "catalogue/gamerecord.h"

namespace tessera {

/// What a favourite holds: the nine attributes of the game record, in the order of Field, and the extra
/// emulator options.
enum class FavouriteKey : std::uint8_t {
    Type,
    Name,
    Cloneof,
    Title,
    Titlejp,
    Year,
    Maker,
    Status,
    Device,
    Option
};

inline constexpr std::size_t favouriteKeyCount = 10;
static_assert(static_cast<std::size_t>(FavouriteKey::Option) == fieldCount);

/// Their names in the favourites file.
inline constexpr std::array<const char*, favouriteKeyCount> favouriteKeyNames{
    "type", "name", "cloneof", "title", "titlejp", "year", "maker", "status", "device", "option"};

constexpr const char* keyName(FavouriteKey key)
{
    return favouriteKeyNames[static_cast<std::size_t>(key)];
}

constexpr FavouriteKey keyOf(Field field)
{
    return static_cast<FavouriteKey>(field);
}

/// Nothing for the options, which no game record has.
constexpr std::optional<Field> fieldOf(FavouriteKey key)
{
    return key == FavouriteKey::Option ? std::nullopt : std::optional(static_cast<Field>(key));
}

} // namespace tessera
