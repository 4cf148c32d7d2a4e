#pragma once

#include "core/failure.h"

#include <expected>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// The bytes that an emulator printed into a file, whole. They are looked at as they are: line ends, blanks
/// and what the tools look for are ASCII.
std::expected<std::string, Failure> readPrinted(const QString& path);

/// Text of such bytes; what is none becomes U+FFFD.
std::string printedText(std::string bytes);

/// Without the blanks, tabs and line feeds at its start. A carriage return is a part of its line.
std::string_view withoutIndent(std::string_view text);

/// The first word of every line that has one, in order: up to the first blank, white space before it skipped.
/// Views of `text`.
std::vector<std::string_view> firstWords(std::string_view text);

} // namespace tessera
