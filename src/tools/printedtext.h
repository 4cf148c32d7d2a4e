#pragma once

#include "core/failure.h"

#include <expected>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// What an emulator printed into a file, whole; bytes that are no text become U+FFFD.
std::expected<std::string, Failure> readPrintedText(const QString& path);

/// The same of bytes that are at hand.
std::string printedText(std::string bytes);

/// Without the white space at its start.
std::string_view withoutIndent(std::string_view text);

/// The first word of every line that has one, in order: up to the first blank, white space before it skipped.
/// Views of `text`.
std::vector<std::string_view> firstWords(std::string_view text);

} // namespace tessera
