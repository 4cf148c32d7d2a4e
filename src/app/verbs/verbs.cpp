#include "app/verbs/verbs.h"

#include "app/verbs/names.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace tessera {

namespace {

constexpr std::array table{
    Verb{"arguments", "[--dialect sdl|osx] [--catalogue FILE] [--set KEY=VALUE]... [--for EMULATOR] [GAME]",
         "Print the launch arguments that the settings make, one a line.", &runArguments},
    Verb{"build", "[--emulator PATH] [-o FILE]",
         "Build the catalogue from what the emulator lists about itself.", &runBuild},
    Verb{
        "command", "POSITION [GAME]",
        "Run the command at a position of the command menu, counted from 0: help, validate, -, createconfig, "
        "showconfig, showusage, -, and for a GAME listxml (7), listfull, -, listsource, listclones, "
        "listbrothers, listcrc, listroms, listsamples, -, verifyroms (17), verifysamples, -, romident (20), "
        "listdevices, listslots, listmedia. The emulator's output goes to stdout and its status is ours.",
        &runCommand},
    Verb{"convert", "LISTXML TITLES -o FILE [--without-bios] [--without-mechanical] [--without-devices]",
         "Make a catalogue file from a saved -listxml text and a list of Japanese titles.", &runConvert},
    Verb{"convert-favourites", "OLD [--catalogue FILE] [-o FILE] [--keep-old]",
         "Turn a favourites file of the older form into the present one; the present file is kept under a "
         "dated name, the old one goes to the Trash.",
         &runConvertFavourites},
    Verb{"diff", "OLD NEW [--favourites FILE]",
         "Say what differs between two catalogue files: machines added, gone, renamed, with another status.",
         &runDiff},
    Verb{"existence", "LISTFULL ROMS -o REPORT",
         "Report which sets of a saved -listfull text have an archive or a folder among the ROMs.",
         &runExistence},
    Verb{"export", "POSITION -o FILE",
         "Write what the emulator prints for a position of the export menu into a file: listfull (0), "
         "listxml, "
         "-, listsource, listclones, listbrothers, listcrc, listroms, listsamples, -, verifyroms (10), "
         "verifysamples, -, listdevices (13), listslots; 15 to 19 verify ROMs or samples again.",
         &runExport},
    Verb{"history", "NAME [--history FILE] [--mameinfo FILE]",
         "Print what history.dat (or history.xml) and mameinfo.dat tell about a set, as the history window "
         "shows it.",
         &runHistory},
    Verb{"launch", "GAME", "Start a game; the emulator's output goes to stdout and its status is ours.",
         &runLaunch},
    Verb{"list", "[--catalogue FILE] [--format tsv|json] [QUERY]... [-- -WORD...]",
         "Print the catalogue's records that a query finds, the best fit first: words, \"exact words\", "
         "title: name: maker: year: status: type: parent: clone: have: device:, and -WORD behind \"--\".",
         &runList},
    Verb{"picture", "NAME --folder DIR [--parent NAME] [--no-parent]",
         "Print the path of the picture that a folder has of a set: NAME/0000.png, or NAME.png, or the same "
         "of "
         "its parent, which --parent names.",
         &runPicture},
    Verb{"script", "GAME --format tool|sh|scpt [--emulator 0|1|2] [--no-options] -o FILE",
         "Write a script that starts a game: with the command-line emulator (0), the MAME OS X application "
         "(1) "
         "or another application (2).",
         &runScript},
    Verb{"separate", "ROMS LISTFULL DEST",
         "Copy what a saved -listfull text does not name out of a ROM folder into another; nothing is "
         "removed or "
         "replaced.",
         &runSeparate},
    Verb{"verify", "VERIFYROMS -o REPORT [--only KEY]...",
         "Condense a saved -verifyroms text by verdict: isgood, isbesta, iclength, iccsum, nredump, ngdk, "
         "isbad (alone "
         "by default), notfound, nfsparent, nfngd, nfbo, other.",
         &runVerify},
};

static_assert(std::ranges::equal(table, verbNames, {},
                                 [](const Verb& verb) { return std::string_view(verb.name); }));

void printTo(std::FILE* stream, const QString& line)
{
    const QByteArray bytes = line.toUtf8() + '\n';
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
}

QString usage(const Verb& verb)
{
    return QStringLiteral("Usage: tessera %1 %2").arg(QLatin1String(verb.name), QLatin1String(verb.form));
}

} // namespace

std::span<const Verb> verbs()
{
    return table;
}

const Verb* verbNamed(const QString& name)
{
    for (const Verb& verb : table) {
        if (name == QLatin1String(verb.name))
            return &verb;
    }
    return nullptr;
}

QString overview()
{
    QString page = QStringLiteral("Usage: tessera [FILE]\n       tessera VERB ...\n\n"
                                  "Without a verb the windows open; a FILE is started in the emulator.\n\n");
    for (const Verb& verb : table)
        page
            += QStringLiteral("  %1%2\n").arg(QLatin1String(verb.name), -20).arg(QLatin1String(verb.summary));
    return page + QStringLiteral("\n\"tessera VERB --help\" tells more.");
}

std::optional<int> parseVerb(const Verb& verb, QCommandLineParser& parser, const QStringList& arguments,
                             int fewest, int most)
{
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Show this help."));
    parser.addOption(help);
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
    if (!parser.parse(arguments))
        return badCommandLine(verb, parser.errorText());
    if (parser.isSet(help)) {
        print(usage(verb) + QStringLiteral("\n\n") + QLatin1String(verb.summary));
        return Done;
    }
    const auto count = parser.positionalArguments().size();
    if (count < fewest)
        return badCommandLine(verb, QStringLiteral("Something is missing."));
    if (count > most)
        return badCommandLine(
            verb, QStringLiteral("\"%1\" is one too many.").arg(parser.positionalArguments()[most]));
    return std::nullopt;
}

int badCommandLine(const Verb& verb, const QString& why)
{
    printTo(stderr, QStringLiteral("tessera %1: %2\n%3").arg(QLatin1String(verb.name), why, usage(verb)));
    return BadCommandLine;
}

int failed(const Failure& failure)
{
    warn(failure);
    return Failed;
}

int refuse(const QString& text)
{
    printTo(stderr, QStringLiteral("tessera: ") + text);
    return Failed;
}

int missing(QLatin1StringView text, const QString& path)
{
    return refuse(text + QStringLiteral(" (%1)").arg(path));
}

void warn(const Failure& failure)
{
    printTo(stderr, QStringLiteral("tessera: ") + failure.text());
}

void print(const QString& line)
{
    printTo(stdout, line);
}

bool printBytes(std::string_view bytes)
{
    return std::fwrite(bytes.data(), 1, bytes.size(), stdout) == bytes.size() && std::fflush(stdout) == 0;
}

} // namespace tessera
