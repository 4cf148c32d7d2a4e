#include "app/verbs/verbs.h"

#include "catalogue/cataloguepath.h"
#include "catalogue/arrangedlist.h"
#include "catalogue/romfolders.h"
#include "catalogue/search/gamesearch.h"
#include "catalogue/storereader.h"
#include "launch/emulatorfinder.h"
#include "launch/profilecache.h"
#include "platform/userdefaults.h"

#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <limits>

namespace tessera {

namespace {

// A value that holds a tab or a line end would break the row apart: those are written as \t, \n, \r, and \ as
// \\.
void appendTsv(std::string& out, std::string_view value)
{
    for (const char c : value) {
        switch (c) {
        case '\t':
            out += "\\t";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\\':
            out += "\\\\";
            break;
        default:
            out += c;
        }
    }
}

void appendJson(std::string& out, std::string_view value)
{
    out += '"';
    for (const char c : value) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            out += '\\';
            out += c;
        } else if (byte < 0x20) {
            constexpr std::string_view digits = "0123456789abcdef";
            out += "\\u00";
            out += digits[byte >> 4];
            out += digits[byte & 15];
        } else {
            out += c;
        }
    }
    out += '"';
}

void appendTsvRecord(std::string& out, const GameRecord& record)
{
    for (std::size_t i = 0; i < fieldCount; ++i) {
        appendTsv(out, record.values[i]);
        out += i + 1 < fieldCount ? '\t' : '\n';
    }
}

void appendJsonRecord(std::string& out, const GameRecord& record)
{
    for (std::size_t i = 0; i < fieldCount; ++i) {
        out += i == 0 ? "{" : ", ";
        appendJson(out, fieldNames[i]);
        out += ": ";
        if (record.has(static_cast<Field>(i)))
            appendJson(out, record.values[i]);
        else
            out += "null";
    }
    out += '}';
}

std::string formatted(const ArrangedList& list, bool json)
{
    std::string out;
    for (std::size_t row = 0; row < list.size(); ++row) {
        if (!json) {
            appendTsvRecord(out, list[row]);
            continue;
        }
        out += row == 0 ? "[\n" : ",\n";
        appendJsonRecord(out, list[row]);
    }
    if (json)
        out += list.size() == 0 ? "[]\n" : "\n]\n";
    return out;
}

// One sentence for each term that is wrong or, since nobody goes on typing here, unfinished.
QStringList wrongTerms(const Query& query)
{
    QStringList sentences;
    for (const Term& term : query.terms()) {
        if (term.why)
            sentences << term.why->text();
    }
    return sentences;
}

Found found(std::span<const GameRecord> records, const Query& query)
{
    GameSearch search(records);
    search.take(SearchTexts::fold(search.unfolded()));
    if (std::ranges::any_of(query.terms(), [](const Term& term) { return term.kind == TermKind::Have; })) {
        const UserDefaults defaults(UserDefaults::standardPath());
        const auto folder = defaults.value(keys::RomsPath.name);
        const QString emulator = emulatorToUse(defaults.string(keys::ExecutionPath.name));
        const auto profile = emulator.isEmpty() ? std::nullopt : ProfileCache().ask(emulator).profile;
        const QStringList folders
            = profile ? profile->romFolderList(QFileInfo(emulator).absolutePath()) : QStringList();
        search.setHaves(
            RomFolders(folder ? std::optional(folder->toString()) : std::nullopt, folders).haves(records));
    }
    Found found = search.findOrNearest(query);
    if (found.isNearest) {
        const Message sentence{"search_nearest", {}};
        std::fprintf(stderr, "%s\n", qUtf8Printable(sentence.text()));
    }
    return found;
}

} // namespace

int runList(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption catalogue(QStringLiteral("catalogue"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption format(QStringLiteral("format"), QString(), QStringLiteral("tsv|json"),
                                    QStringLiteral("tsv"));
    parser.addOptions({catalogue, format});
    if (const auto status = parseVerb(verb, parser, arguments, 0, std::numeric_limits<int>::max()))
        return *status;
    const bool json = parser.value(format) == QStringLiteral("json");
    if (!json && parser.value(format) != QStringLiteral("tsv"))
        return badCommandLine(verb, QStringLiteral("The format is tsv or json."));

    const Query query(parser.positionalArguments().join(u' '));
    if (const QStringList wrong = wrongTerms(query); !wrong.isEmpty())
        return badCommandLine(verb, wrong.join(u'\n'));

    const auto stored
        = readStore(parser.isSet(catalogue) ? parser.value(catalogue) : standardCataloguePath());
    if (!stored)
        return failed(stored.error());
    // As the window has it: by set name, or the best fit first.
    ArrangedList list;
    list.setContent(stored->records);
    if (!query.isEmpty())
        list.setFound(found(stored->records, query));
    if (!printBytes(formatted(list, json)))
        return failed(Failure{"failure_write",
                              {QStringLiteral("stdout"), QString::fromLocal8Bit(std::strerror(errno))}});
    return Done;
}

} // namespace tessera
