#pragma once

#include "core/failure.h"

#include <QCommandLineParser>
#include <QStringList>

#include <optional>
#include <span>

namespace tessera {

/// One job on the command line, without a display.
struct Verb {
    const char* name;
    const char* form; ///< what follows "tessera NAME"
    const char* summary; ///< one sentence
    int (*run)(const Verb& verb, const QStringList& arguments);
};

/// Exit statuses of every verb but launch and command, which give the emulator's own.
enum ExitStatus { Done = 0, Failed = 1, BadCommandLine = 2 };

std::span<const Verb> verbs();
const Verb* verbNamed(const QString& name);

/// The page that `tessera --help` prints.
QString overview();

/// Parses a verb's own arguments. An exit status where nothing is left to do: after --help, or for a bad
/// command line, which it has explained then. `fewest` and `most` count the arguments without a dash.
std::optional<int> parseVerb(const Verb& verb, QCommandLineParser& parser, const QStringList& arguments,
                             int fewest, int most);

int badCommandLine(const Verb& verb, const QString& why);
int failed(const Failure& failure);
/// Says a text of the information line on stderr.
int refuse(const QString& text);
/// The same with the path that it is about.
int missing(QLatin1StringView text, const QString& path);
/// Says on stderr what went wrong beside the job.
void warn(const Failure& failure);
void print(const QString& line);
/// Writes bytes to stdout; false when that failed (a full disk, a closed pipe).
bool printBytes(std::string_view bytes);

int runArguments(const Verb& verb, const QStringList& arguments);
int runBuild(const Verb& verb, const QStringList& arguments);
int runCommand(const Verb& verb, const QStringList& arguments);
int runConvert(const Verb& verb, const QStringList& arguments);
int runConvertFavourites(const Verb& verb, const QStringList& arguments);
int runDiff(const Verb& verb, const QStringList& arguments);
int runExistence(const Verb& verb, const QStringList& arguments);
int runExport(const Verb& verb, const QStringList& arguments);
int runHistory(const Verb& verb, const QStringList& arguments);
int runLaunch(const Verb& verb, const QStringList& arguments);
int runList(const Verb& verb, const QStringList& arguments);
int runPicture(const Verb& verb, const QStringList& arguments);
int runScript(const Verb& verb, const QStringList& arguments);
int runSeparate(const Verb& verb, const QStringList& arguments);
int runVerify(const Verb& verb, const QStringList& arguments);

} // namespace tessera
