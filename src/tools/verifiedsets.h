#pragma once

#include <QString>

#include <cstdint>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace tessera {

/// A file of a set that is not as the emulator expects it.
struct WrongFile {
    enum class Problem : std::uint8_t {
        Missing,
        MissingButOptional,
        MissingEverywhere, ///< and nobody has a good dump
        OtherLength,
        OtherContent,
        NeedsRedump,
        NoGoodDump
    };

    std::string name;
    std::optional<std::int64_t> bytes; ///< expected
    Problem problem = Problem::Missing;
    std::optional<std::int64_t> foundBytes; ///< for another length
    std::string sharedWith; ///< the set whose archive it belongs into; "parent" is that set's parent
};

/// What an emulator says about one set.
struct VerifiedSet {
    enum class Verdict : std::uint8_t { Good, BestAvailable, Bad, NotFound, None };
    static constexpr std::size_t verdictCount = 5;

    std::string name;
    std::string parent; ///< in brackets behind the name; empty for none
    Verdict verdict = Verdict::None; ///< none where the text ends before it
    std::vector<WrongFile> files;
};

/// The sets of what an emulator prints for -verifyroms, in its order. The words of old and new releases are
/// known; what is no line about a set or its files is passed over.
std::vector<VerifiedSet> verifiedSets(std::string_view printed, const std::stop_token& stop = {});

/// How many lines of a piece of such a text say a set's verdict.
std::size_t verdictLines(std::string_view lines);

/// "pacman.zip": the archive that a file of a set belongs into.
std::string archiveOf(const VerifiedSet& set, const WrongFile& file);

/// What is wrong with a file, in a sentence of the user's language; with the archive that it belongs into.
QString sentenceOf(const VerifiedSet& set, const WrongFile& file);
/// The same of a whole set in a few words.
QString stateOf(const VerifiedSet& set);

} // namespace tessera
