#include "tools/verifiedsets.h"

#include "catalogue/recorddictionary.h"
#include "core/failure.h"
#include "core/texts.h"
#include "tools/printedtext.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <unordered_map>

namespace tessera {

namespace {

using Problem = WrongFile::Problem;
using Verdict = VerifiedSet::Verdict;

struct ProblemWords {
    std::string_view words;
    Problem problem;
    const char* sentence;
};

// Longer words before those that they begin with. Old releases write no dash before them.
// clang-format off
constexpr std::array<ProblemWords, 7> problems{{
    {"NOT FOUND - NO GOOD DUMP KNOWN", Problem::MissingEverywhere,  textKey("wrong_nowhere")},
    {"NOT FOUND BUT OPTIONAL",         Problem::MissingButOptional, textKey("wrong_optional")},
    {"NOT FOUND",                      Problem::Missing,            textKey("wrong_missing")},
    {"INCORRECT LENGTH",               Problem::OtherLength,        textKey("wrong_length")},
    {"INCORRECT CHECKSUM",             Problem::OtherContent,       textKey("wrong_content")},
    {"NEEDS REDUMP",                   Problem::NeedsRedump,        textKey("wrong_redump")},
    {"NO GOOD DUMP KNOWN",             Problem::NoGoodDump,         textKey("wrong_nogood")},
}};

struct VerdictWords {
    std::string_view words;
    Verdict verdict;
};

// The oldest releases say it without "is".
constexpr std::array<VerdictWords, 7> verdictWords{{
    {"is good",           Verdict::Good},
    {"is best available", Verdict::BestAvailable},
    {"is bad",            Verdict::Bad},
    {"not found!",        Verdict::NotFound},
    {"best available",    Verdict::BestAvailable},
    {"incorrect",         Verdict::Bad},
    {"correct",           Verdict::Good},
}};
// clang-format on

constexpr std::string_view setLine = "romset ";
constexpr std::string_view sharedWithParent = "shared with parent";
constexpr std::string_view parentWord = "parent";

std::string_view trimmed(std::string_view text)
{
    text = withoutIndent(text);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t' || text.back() == '\r'))
        text.remove_suffix(1);
    return text;
}

std::string_view takeLine(std::string_view& text)
{
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return line;
}

std::optional<std::int64_t> numberAt(std::string_view text)
{
    text = withoutIndent(text);
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() ? std::optional(number) : std::nullopt;
}

// "romset NAME [PARENT] is bad"; names in quotes, as newer releases write those that they do not find.
std::optional<VerifiedSet> readSetLine(std::string_view line)
{
    if (!line.starts_with(setLine))
        return std::nullopt;
    line = trimmed(line.substr(setLine.size()));
    const auto known = std::ranges::find_if(verdictWords, [&](const VerdictWords& row) {
        return line.ends_with(row.words) && line.size() > row.words.size()
            && line[line.size() - row.words.size() - 1] == ' ';
    });
    if (known == verdictWords.end())
        return std::nullopt;
    line = trimmed(line.substr(0, line.size() - known->words.size()));
    VerifiedSet set;
    set.verdict = known->verdict;
    if (const std::size_t bracket = line.find('[');
        bracket != std::string_view::npos && line.ends_with(']')) {
        set.parent = line.substr(bracket + 1, line.size() - bracket - 2);
        line = trimmed(line.substr(0, bracket));
    }
    if (line.size() > 1 && line.front() == '"' && line.back() == '"')
        line = line.substr(1, line.size() - 2);
    set.name = line;
    return set;
}

// "NAME (123 bytes) - ", or "NAME 123 bytes 01234567 " as old releases write it.
void readFileName(std::string_view text, WrongFile& file)
{
    text = trimmed(text);
    if (text.ends_with('-'))
        text = trimmed(text.substr(0, text.size() - 1));
    const std::size_t bytes = text.rfind(" bytes");
    if (bytes != std::string_view::npos && bytes > 0) {
        const std::size_t before = text.find_last_not_of("0123456789", bytes - 1);
        if (before != std::string_view::npos && before + 1 < bytes) {
            file.bytes = numberAt(text.substr(before + 1));
            text = trimmed(text.substr(0, text[before] == '(' ? before : before + 1));
        }
    }
    file.name = text;
}

struct FileLine {
    std::string_view set;
    WrongFile file;
};

// "SET         : FILE - WHAT IS WRONG (SHARED WITH)"
std::optional<FileLine> readFileLine(std::string_view line)
{
    const std::size_t colon = line.find(": ");
    const std::string_view set = trimmed(line.substr(0, std::min(colon, line.size())));
    if (colon == std::string_view::npos || set.empty() || set.contains(' '))
        return std::nullopt;
    const std::string_view rest = line.substr(colon + 2);
    for (const ProblemWords& row : problems) {
        const std::size_t place = rest.find(row.words);
        if (place == std::string_view::npos || place == 0)
            continue;
        FileLine read{set, {}};
        read.file.problem = row.problem;
        readFileName(rest.substr(0, place), read.file);
        const std::string_view behind = trimmed(rest.substr(place + row.words.size()));
        if (row.problem == Problem::OtherLength && behind.starts_with(':'))
            read.file.foundBytes = numberAt(behind.substr(1));
        else if (behind.starts_with('(') && behind.ends_with(')'))
            read.file.sharedWith = behind.substr(1, behind.size() - 2);
        if (read.file.sharedWith == sharedWithParent)
            read.file.sharedWith = parentWord;
        return read;
    }
    return std::nullopt;
}

/// Files come before the line with their set's verdict.
class SetReader
{
public:
    void take(std::string_view line)
    {
        if (auto set = readSetLine(line)) {
            if (const auto open = m_open.find(set->name); open != m_open.end()) {
                set->files = std::move(open->second);
                m_open.erase(open);
            }
            m_sets.push_back(std::move(*set));
        } else if (auto read = readFileLine(line)) {
            const std::string name(read->set);
            if (!m_open.contains(name))
                m_order.push_back(name);
            m_open[name].push_back(std::move(read->file));
        }
    }

    std::vector<VerifiedSet> finish()
    {
        for (const std::string& name : m_order) {
            const auto open = m_open.find(name);
            if (open == m_open.end())
                continue;
            VerifiedSet set;
            set.name = name;
            set.files = std::move(open->second);
            m_open.erase(open);
            m_sets.push_back(std::move(set));
        }
        return std::move(m_sets);
    }

private:
    std::vector<VerifiedSet> m_sets;
    std::unordered_map<std::string, std::vector<WrongFile>> m_open; // whose verdict is still to come
    std::vector<std::string> m_order;
};

constexpr std::array<const char*, VerifiedSet::verdictCount> states{
    textKey("state_good"), textKey("state_best"), textKey("state_bad"), textKey("state_notfound"),
    textKey("state_none")};

bool isMissing(const WrongFile& file)
{
    return file.problem == Problem::Missing || file.problem == Problem::MissingButOptional
        || file.problem == Problem::MissingEverywhere;
}

} // namespace

std::vector<VerifiedSet> verifiedSets(std::string_view printed, const std::stop_token& stop)
{
    SetReader reader;
    while (!printed.empty() && !stop.stop_requested())
        reader.take(trimmed(takeLine(printed)));
    return reader.finish();
}

std::size_t verdictLines(std::string_view lines)
{
    std::size_t count = 0;
    while (!lines.empty())
        count += readSetLine(trimmed(takeLine(lines))) ? 1 : 0;
    return count;
}

std::string archiveOf(const VerifiedSet& set, const WrongFile& file)
{
    if (file.sharedWith.empty())
        return set.name + ".zip";
    if (file.sharedWith == parentWord)
        return (set.parent.empty() ? set.name : set.parent) + ".zip";
    return file.sharedWith + ".zip";
}

QString sentenceOf(const VerifiedSet& set, const WrongFile& file)
{
    const auto* row = std::ranges::find(problems, file.problem, &ProblemWords::problem);
    QStringList arguments{fieldText(file.name), fieldText(archiveOf(set, file))};
    if (file.problem == Problem::OtherLength)
        arguments << (file.foundBytes ? numberText(*file.foundBytes) : QStringLiteral("?"))
                  << (file.bytes ? numberText(*file.bytes) : QStringLiteral("?"));
    return Failure{row->sentence, arguments}.text();
}

QString stateOf(const VerifiedSet& set)
{
    const auto missing = std::ranges::count_if(set.files, &isMissing);
    const auto others = std::ssize(set.files) - missing;
    QStringList words{qtTrId(states[static_cast<std::size_t>(set.verdict)])};
    if (missing > 0)
        words << qtTrId("state_missing").arg(numberText(missing));
    if (others > 0)
        words << qtTrId("state_wrong").arg(numberText(others));
    return words.join(QStringLiteral(" · "));
}

} // namespace tessera
