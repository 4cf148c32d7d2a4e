#pragma once

#include "catalogue/gamerecord.h"

#include <QUuid>

#include <array>
#include <string>
#include <string_view>

/// The texts of the store file, in the order in which they are written. A file is: headerStart, a UUID,
/// headerMiddle, the last object's number, headerEnd, the objects, storeEnd. An object is: objectStart, its
/// number, objectStartEnd, for each field its attributeStarts, the value and attributeEnd, then objectEnd.
namespace tessera::storelayout {

// clang-format off
inline constexpr std::string_view headerStart =
    "<?xml version=\"1.0\"?>\n"
    "<!DOCTYPE database SYSTEM \"file:///System/Library/DTDs/CoreData.dtd\">\n"
    "\n"
    "<database>\n"
    "<databaseInfo>\n"
    "<version>134481920</version>\n"
    "<UUID>";
inline constexpr std::string_view headerMiddle =
    "</UUID>\n"
    "<nextObjectID>";
inline constexpr std::string_view headerEnd =
    "</nextObjectID>\n"
    "<metadata></metadata>\n"
    "</databaseInfo>\n";
inline constexpr std::string_view objectStart = "<object type=\"MAME\" id=\"z";
inline constexpr std::string_view objectStartEnd = "\">\n";
inline constexpr std::array<std::string_view, fieldCount> attributeStarts{
    "<attribute name=\"type\" type=\"string\">",
    "<attribute name=\"name\" type=\"string\">",
    "<attribute name=\"cloneof\" type=\"string\">",
    "<attribute name=\"title\" type=\"string\">",
    "<attribute name=\"titlejp\" type=\"string\">",
    "<attribute name=\"year\" type=\"string\">",
    "<attribute name=\"maker\" type=\"string\">",
    "<attribute name=\"status\" type=\"string\">",
    "<attribute name=\"device\" type=\"string\">",
};
// clang-format on
inline constexpr std::string_view attributeEnd = "</attribute>\n";
inline constexpr std::string_view objectEnd = "</object>\n";
inline constexpr std::string_view storeEnd = "</database>";

/// The root element and the objects' type, as any program writes them.
inline constexpr std::string_view rootElement = "database";
inline constexpr std::string_view entity = "MAME";

inline constexpr unsigned firstObjectId = 102;

/// nextObjectID is, in spite of its name, the number of the last object; 101 in a store without any.
constexpr std::size_t lastObjectId(std::size_t records)
{
    return firstObjectId + records - 1;
}

/// A new one in its standard form: 36 characters, upper case.
inline std::string newUuid()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper().toStdString();
}

} // namespace tessera::storelayout
