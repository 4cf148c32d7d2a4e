#pragma once

#include "core/failure.h"

#include <QByteArray>

#include <expected>

/// What the property-list library does not look at itself. It goes as deep into its own calls as the values
/// go into each other, makes a value anew wherever a binary file names it, knows UTF-8 only, and passes over
/// what it does not know.
namespace tessera {

/// Values within values; the file's outermost is the first.
inline constexpr int deepestPropertyList = 256;

/// Bytes of a file that is read or written. In memory four times as many are allowed: each value has its
/// weight, and a text that of its characters.
inline constexpr qsizetype largestPropertyList = 128 << 20;

/// A whole file's values in the plainest form, which the library takes for no others: in UTF-8, without
/// comments and sections, whole numbers in decimal. `path` is for the failures' texts.
std::expected<QByteArray, Failure> plainXmlPropertyList(const QByteArray& bytes, const QString& path);

/// A file in binary form that does not fold back into itself.
std::expected<void, Failure> checkBinaryPropertyList(const QByteArray& bytes, const QString& path);

} // namespace tessera
