#pragma once

#include "core/settingskeys.h"

#include <QString>

#include <array>
#include <bitset>
#include <optional>
#include <stop_token>
#include <string>
#include <string_view>

namespace tessera {

/// What the tool says; the same in every language.
namespace verificationtexts {
inline constexpr QLatin1StringView started("Now Extracting...");
inline constexpr QLatin1StringView noFile("verifyroms.txt file is not found.");
inline constexpr QLatin1StringView nothingChosen("Not found.");
inline constexpr QLatin1StringView cancelled("Cancel.");
inline constexpr QLatin1StringView saved("Saved a Verifyroms text.");
inline constexpr QLatin1StringView notWritten("Error writing file at %1 - %2");
} // namespace verificationtexts

/// How the emulator judges a set or one of its files.
struct Verdict {
    const Key<bool>* key;
    const char* button; ///< the name of its box
    std::string_view words; ///< what a line of it holds
    std::string_view summary; ///< what its lines are called when they are counted
    bool isAtEnd = false; ///< whether the words must end the line

    /// The key's ending: "isbad".
    QLatin1StringView ending() const;
};

/// In the report's order; the boxes' numbers follow another one.
// clang-format off
inline constexpr std::array<Verdict, 12> verdicts{{
    {&keys::verifyromsButton_isgood,   "verifyButton1",      "is good",                        "is good"},
    {&keys::verifyromsButton_isbesta,  "verifyButton2",      "is best available",              "is best available"},
    {&keys::verifyromsButton_iclength, "verifyButton9",      "INCORRECT LENGTH",               "INCORRECT LENGTH"},
    {&keys::verifyromsButton_iccsum,   "verifyButton10",     "INCORRECT CHECKSUM",             "INCORRECT CHECKSUM"},
    {&keys::verifyromsButton_nredump,  "verifyButton3",      "NEEDS REDUMP",                   "NEEDS REDUMP"},
    {&keys::verifyromsButton_ngdk,     "verifyButton4",      "NO GOOD DUMP KNOWN",             "NO GOOD DUMP KNOWN"},
    {&keys::verifyromsButton_isbad,    "verifyButton6",      "is bad",                         "is bad"},
    {&keys::verifyromsButton_notfound, "verifyButton7",      "NOT FOUND",                      "NOT FOUND", true},
    {&keys::verifyromsButton_nfsparent, "verifyButton8",     "(shared with parent)",           "NOT FOUND (shared with parent)"},
    {&keys::verifyromsButton_nfngd,    "verifyButton_nfngd", "NOT FOUND - NO GOOD DUMP KNOWN", "NOT FOUND - NO GOOD DUMP KNOWN"},
    {&keys::verifyromsButton_nfbo,     "verifyButton_nfbo",  "NOT FOUND BUT OPTIONAL",         "NOT FOUND BUT OPTIONAL"},
    {&keys::verifyromsButton_other,    "verifyButton5",      "Other",                          "Other"},
}};
// clang-format on

/// Positions in `verdicts`.
using ChosenVerdicts = std::bitset<verdicts.size()>;

/// The position of the verdict whose key has this ending.
std::optional<std::size_t> verdictNamed(const QString& ending);

/// Condenses what the emulator prints for -verifyroms: under each chosen verdict its lines and their number.
/// Empty where none is chosen. Once somebody asks to stop, what comes is of no use.
std::string verificationReport(std::string_view printed, ChosenVerdicts chosen,
                               const std::stop_token& stop = {});

} // namespace tessera
