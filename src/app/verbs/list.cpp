#include "app/verbs/verbs.h"

#include "catalogue/cataloguepath.h"
#include "catalogue/storereader.h"

#include <cerrno>
#include <cstring>

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

std::string formatted(std::span<const GameRecord> records, bool json)
{
    std::string out;
    bool first = true;
    for (const GameRecord& record : records) {
        if (!json) {
            appendTsvRecord(out, record);
            continue;
        }
        out += first ? "[\n" : ",\n";
        appendJsonRecord(out, record);
        first = false;
    }
    if (json)
        out += first ? "[]\n" : "\n]\n";
    return out;
}

} // namespace

int runList(const Verb& verb, const QStringList& arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption catalogue(QStringLiteral("catalogue"), QString(), QStringLiteral("FILE"));
    const QCommandLineOption format(QStringLiteral("format"), QString(), QStringLiteral("tsv|json"),
                                    QStringLiteral("tsv"));
    parser.addOptions({catalogue, format});
    if (const auto status = parseVerb(verb, parser, arguments, 0, 0))
        return *status;
    const bool json = parser.value(format) == QStringLiteral("json");
    if (!json && parser.value(format) != QStringLiteral("tsv"))
        return badCommandLine(verb, QStringLiteral("The format is tsv or json."));

    const auto stored
        = readStore(parser.isSet(catalogue) ? parser.value(catalogue) : standardCataloguePath());
    if (!stored)
        return failed(stored.error());
    if (!printBytes(formatted(stored->records, json)))
        return failed(Failure{"failure_write",
                              {QStringLiteral("stdout"), QString::fromLocal8Bit(std::strerror(errno))}});
    return Done;
}

} // namespace tessera
