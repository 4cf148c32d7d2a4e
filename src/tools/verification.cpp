#include "tools/verification.h"

#include "tools/printedtext.h"

#include <algorithm>
#include <cstring>

namespace tessera {

namespace {

constexpr QLatin1StringView keyStem("verifyromsButton_");

// The library's own search: it skips most of the text, where string_view's looks at every byte.
std::size_t find(std::string_view text, std::string_view words, std::size_t from)
{
    const void* hit = ::memmem(text.data() + from, text.size() - from, words.data(), words.size());
    return hit == nullptr ? std::string_view::npos
                          : static_cast<std::size_t>(static_cast<const char*>(hit) - text.data());
}

// Where the next line of a verdict has its words, from the start of a line on.
std::size_t findVerdict(std::string_view text, const Verdict& verdict, std::size_t from)
{
    if (!verdict.isAtEnd)
        return find(text, verdict.words, from);
    const std::string ended = std::string(verdict.words) + '\n';
    if (const std::size_t hit = find(text, ended, from); hit != std::string_view::npos)
        return hit;
    // The last line may lack its line feed.
    return text.substr(from).ends_with(verdict.words) ? text.size() - verdict.words.size()
                                                      : std::string_view::npos;
}

std::size_t appendLines(std::string& report, std::string_view text, const Verdict& verdict,
                        const std::stop_token& stop)
{
    std::size_t count = 0;
    std::size_t from = 0;
    while (from < text.size() && !stop.stop_requested()) {
        const std::size_t hit = findVerdict(text, verdict, from);
        if (hit == std::string_view::npos)
            break;
        const std::size_t feed = text.rfind('\n', hit);
        const std::size_t start = feed == std::string_view::npos ? 0 : feed + 1;
        const std::size_t end = std::min(text.find('\n', hit), text.size());
        report += withoutIndent(text.substr(start, end - start));
        report += '\n';
        ++count;
        from = end + 1;
    }
    return count;
}

} // namespace

QLatin1StringView Verdict::ending() const
{
    return key->name.mid(keyStem.size());
}

std::optional<std::size_t> verdictNamed(const QString& ending)
{
    const auto found
        = std::ranges::find_if(verdicts, [&](const Verdict& verdict) { return ending == verdict.ending(); });
    return found == verdicts.end() ? std::nullopt
                                   : std::optional(static_cast<std::size_t>(found - verdicts.begin()));
}

std::string verificationReport(std::string_view printed, ChosenVerdicts chosen, const std::stop_token& stop)
{
    std::string report;
    for (std::size_t i = 0; i < verdicts.size(); ++i) {
        if (!chosen[i])
            continue;
        const std::size_t count = appendLines(report, printed, verdicts[i], stop);
        report += "\n(";
        report += verdicts[i].summary;
        report += ": " + std::to_string(count) + ")\n\n";
    }
    return printedText(std::move(report));
}

} // namespace tessera
