#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace tessera {

/// The nine attributes of a game record, in the order in which the store file lists them.
enum class Field : std::uint8_t { Type, Name, Cloneof, Title, Titlejp, Year, Maker, Status, Device };

inline constexpr std::size_t fieldCount = 9;

/// The attributes' names, as the store file spells them.
inline constexpr std::array<std::string_view, fieldCount> fieldNames{
    "type", "name", "cloneof", "title", "titlejp", "year", "maker", "status", "device"};

constexpr std::string_view fieldName(Field field)
{
    return fieldNames[static_cast<std::size_t>(field)];
}

constexpr std::optional<Field> fieldNamed(std::string_view name)
{
    for (std::size_t i = 0; i < fieldCount; ++i) {
        if (fieldNames[i] == name)
            return static_cast<Field>(i);
    }
    return std::nullopt;
}

/// One machine: nine views of UTF-8 text that the catalogue's arena owns. A view without data is absent,
/// which is not the same as empty.
struct GameRecord {
    std::array<std::string_view, fieldCount> values;

    std::string_view operator[](Field field) const { return values[static_cast<std::size_t>(field)]; }
    std::string_view& operator[](Field field) { return values[static_cast<std::size_t>(field)]; }
    bool has(Field field) const { return (*this)[field].data() != nullptr; }
};

} // namespace tessera
