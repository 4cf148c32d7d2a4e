#pragma once

#include <QStringList>

#include <array>
#include <optional>

/// The emulator's informational commands by their positions in the two pop-ups. Settings hold positions, so a
/// row keeps its place for ever.
namespace tessera {

/// What a command begins with.
enum class Subject { None, Game, Archive, Executable };

/// One item of the command pop-up; without a title it is a separator, which runs the emulator without
/// arguments.
struct CommandRow {
    const char* title = nullptr; ///< as the pop-up and the log show it
    Subject subject = Subject::None;
    const char* argument = nullptr;
};

// clang-format off
inline constexpr std::array commandRows{
    CommandRow{"-help",          Subject::None,       "-help"},           //  0
    CommandRow{"-validate",      Subject::None,       "-validate"},       //  1
    CommandRow{},                                                         //  2
    CommandRow{"-createconfig",  Subject::None,       "-createconfig"},   //  3
    CommandRow{"-showconfig",    Subject::None,       "-showconfig"},     //  4
    CommandRow{"-showusage",     Subject::None,       "-showusage"},      //  5
    CommandRow{},                                                         //  6
    CommandRow{"-listxml",       Subject::Game,       "-listxml"},        //  7
    CommandRow{"-listfull",      Subject::Game,       "-listfull"},       //  8
    CommandRow{},                                                         //  9
    CommandRow{"-listsource",    Subject::Game,       "-listsource"},     // 10
    CommandRow{"-listclones",    Subject::Game,       "-listclones"},     // 11
    CommandRow{"-listbrothers",  Subject::Game,       "-listbrothers"},   // 12
    CommandRow{"-listcrc",       Subject::Game,       "-listcrc"},        // 13
    CommandRow{"-listroms",      Subject::Game,       "-listroms"},       // 14
    CommandRow{"-listsamples",   Subject::Game,       "-listsamples"},    // 15
    CommandRow{},                                                         // 16
    CommandRow{"-verifyroms",    Subject::Game,       "-verifyroms"},     // 17
    CommandRow{"-verifysamples", Subject::Game,       "-verifysamples"},  // 18
    CommandRow{},                                                         // 19
    CommandRow{"-romident",      Subject::Archive,    "-romident"},       // 20
    // Deliberate: these begin with the emulator's own path, though they want a selected game.
    CommandRow{"-listdevices",   Subject::Executable, "-listdevices"},    // 21
    CommandRow{"-listslots",     Subject::Executable, "-listslots"},      // 22
    CommandRow{"-listmedia",     Subject::Executable, "-listmedia"},      // 23
};
// clang-format on
static_assert(commandRows.size() == 24);

/// One item of the export pop-up; without a title it is a separator.
struct ExportRow {
    const char* title = nullptr; ///< as the pop-up and the log show it
    const char* panelTitle = nullptr;
    const char* fileName = nullptr; ///< proposed
    const char* argument = nullptr;
};

// What a separator, and every position behind the last one, proposes.
inline constexpr ExportRow exportSeparator{nullptr, "Save listfull file", "listfull.txt", nullptr};

// clang-format off
inline constexpr std::array exportRows{
    ExportRow{"-listfull",       "Save listfull file",       "listfull.txt",       "-listfull"},       //  0
    ExportRow{"-listxml",        "Save listxml file",        "listxml.xml",        "-listxml"},        //  1
    exportSeparator,                                                                                   //  2
    ExportRow{"-listsource",     "Save listsource file",     "listsource.txt",     "-listsource"},     //  3
    ExportRow{"-listclones",     "Save listclones file",     "listclones.txt",     "-listclones"},     //  4
    ExportRow{"-listbrothers",   "Save listbrothers file",   "listbrothers.txt",   "-listbrothers"},   //  5
    ExportRow{"-listcrc",        "Save listcrc file",        "listcrc.txt",        "-listcrc"},        //  6
    ExportRow{"-listroms",       "Save listroms file",       "listroms.txt",       "-listroms"},       //  7
    ExportRow{"-listsamples",    "Save listsamples file",    "listsamples.txt",    "-listsamples"},    //  8
    exportSeparator,                                                                                   //  9
    ExportRow{"-verifyroms",     "Save verifyroms file",     "verifyroms.txt",     "-verifyroms"},     // 10
    ExportRow{"-verifysamples",  "Save verifysamples file",  "verifysamples.txt",  "-verifysamples"},  // 11
    exportSeparator,                                                                                   // 12
    ExportRow{"-listdevices",    "Save listdevices file",    "listdevices.txt",    "-listdevices"},    // 13
    ExportRow{"-listslots",      "Save listslots file",      "listslots.txt",      "-listslots"},      // 14
    // Deliberate: these are named for one listing and run another command.
    ExportRow{"-listmedia",      "Save listmedia file",      "listmedia.txt",      "-verifyroms"},     // 15
    ExportRow{"-listsoftware",   "Save listsoftware file",   "listsoftware.txt",   "-verifysamples"},  // 16
    ExportRow{"-verifysoftware", "Save verifysoftware file", "verifysoftware.txt", "-verifyroms"},     // 17
    ExportRow{"-getsoftlist",    "Save getsoftlist file",    "getsoftlist.txt",    "-verifysamples"},  // 18
    ExportRow{"-verifysoftlist", "Save verifysoftlist file", "verifysoftlist.txt", "-verifysamples"},  // 19
};
// clang-format on
static_assert(exportRows.size() == 20);

/// The row at a position; one that the pop-up does not have reads as a separator.
const CommandRow& commandRow(int position);
const ExportRow& exportRow(int position);

/// What commands are about.
struct CommandSubjects {
    QString game; ///< the selected game's short name; empty for none
    QString archive; ///< the selected game's
    QString executable;
};

/// The arguments of the command at a position; nothing where it needs a game and none is selected.
std::optional<QStringList> commandArguments(int position, const CommandSubjects& subjects);
QStringList exportArguments(int position);

/// The first line of a command's log, with its empty line.
QString commandHeader(int position, const QString& game, const QString& title);
QString exportHeader(const QString& title);

/// What ends the log of an export.
inline constexpr QLatin1StringView exportCompleted("File save was completed.\n");

} // namespace tessera
