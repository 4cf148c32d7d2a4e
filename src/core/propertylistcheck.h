#pragma once

#include "core/failure.h"

#include <QByteArray>

#include <expected>

/// What the property-list library does not look at itself. It goes as deep into its own calls as the values
/// go into each other, makes a value anew wherever a binary file names it, and passes over what it does not
/// know.
namespace tessera {

/// Values within values; the file's outermost is the first.
inline constexpr int deepestPropertyList = 256;

/// Bytes of a file, and about as many of what it would grow to in memory.
inline constexpr qsizetype largestPropertyList = 64 << 20;

/// A whole file in UTF-8 that loses nothing when it is read. `path` is for the failures' texts.
std::expected<void, Failure> checkXmlPropertyList(const QByteArray& bytes, const QString& path);

/// A file in binary form that does not fold back into itself.
std::expected<void, Failure> checkBinaryPropertyList(const QByteArray& bytes, const QString& path);

} // namespace tessera
