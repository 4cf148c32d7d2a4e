#pragma once

#include "catalogue/namelist.h"
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

/// The set names of what an emulator prints for -listfull, in its order; with the first word of its header,
/// which is not told apart.
class ListedSets : public NameList
{
public:
    ListedSets() = default;
    explicit ListedSets(std::string_view printed);
    static std::expected<ListedSets, Failure> read(const QString& listfull);

    // The names that were handed out stay where they are.
    ListedSets(ListedSets&&) = default;
    ListedSets& operator=(ListedSets&&) = default;

private:
    void addWord(std::string_view word);
};

} // namespace tessera
