#include "catalogue/search/queryparser.h"

#include "catalogue/recorddictionary.h"
#include "catalogue/search/folding.h"

#include <algorithm>
#include <array>

namespace tessera {

namespace {

bool isMinus(QChar c)
{
    return c == u'-' || c == u'－' || c == u'−';
}

bool isColon(QChar c)
{
    return c == u':' || c == u'：';
}

/// Marks around words: any of those that begin a quotation, and any of those that end it.
struct Quotes {
    QStringView opening;
    QStringView closing;
};

constexpr std::array quotes{
    Quotes{u"\"“”„＂", u"\"“”„＂"},
    Quotes{u"「｢", u"」｣"},
    Quotes{u"『", u"』"},
};

// What ends a quotation that begins with this, or nothing where none does.
QStringView closingQuotes(QChar c)
{
    const auto* const row
        = std::ranges::find_if(quotes, [c](const Quotes& each) { return each.opening.contains(c); });
    return row != quotes.end() ? row->closing : QStringView();
}

std::string foldedText(QStringView text)
{
    return folded(text.toUtf8().toStdString());
}

std::string trimmed(std::string text)
{
    text.erase(0, text.find_first_not_of(' '));
    text.erase(text.find_last_not_of(' ') + 1);
    return text;
}

QString joined(std::span<const std::string_view> values)
{
    QStringList list;
    for (const std::string_view value : values)
        list << fieldText(value);
    return list.join(QStringLiteral(", "));
}

QString keyNames()
{
    std::vector<std::string_view> names;
    names.reserve(searchKeys.size());
    for (const SearchKey& key : searchKeys)
        names.push_back(key.name);
    return joined(names);
}

// In a sentence for the user; whole pages can be pasted.
QString shown(QStringView text)
{
    constexpr qsizetype most = 40;
    return text.size() > most ? QString(text.first(most) + u'…') : text.toString();
}

Failure unknownKey(QStringView name)
{
    if (const SearchKey* nearest = nearestKey(foldedText(name)))
        return Failure{"search_near_key", {shown(name), keyNames(), fieldText(nearest->name)}};
    return Failure{"search_wrong_key", {shown(name), keyNames()}};
}

// The first digits of years may be all that is typed so far.
bool mayBecomeYears(std::string_view value)
{
    const auto dash = value.find('-');
    const auto mayBecomeYear = [](std::string_view year) {
        return year.size() <= 4
            && std::ranges::all_of(year, [](char c) { return (c >= '0' && c <= '9') || c == '?'; });
    };
    if (dash == std::string_view::npos)
        return mayBecomeYear(value);
    const std::string_view first = value.substr(0, dash);
    return (first.empty() || askedYear(first)) && mayBecomeYear(value.substr(dash + 1));
}

// The ten years from the last one on may be meant, and would be in order.
bool mayBecomeDecade(YearRange reversed, std::string_view last)
{
    const auto decade = askedYear(std::string(last) + 's');
    return decade && reversed.first <= decade->last;
}

// The last year of a span, or the only one.
std::string_view lastYear(std::string_view value)
{
    return value.substr(value.rfind('-') + 1);
}

// "1985", "1985-1989", "1985-" or "-1989".
std::optional<YearRange> askedYears(std::string_view value)
{
    const auto dash = value.find('-');
    const std::string_view first = value.substr(0, dash);
    if (dash == std::string_view::npos)
        return askedYear(first);
    const std::string_view last = value.substr(dash + 1);
    if (first.empty() && last.empty())
        return std::nullopt;
    const auto from = first.empty() ? YearRange() : askedYear(first);
    const auto to = last.empty() ? YearRange() : askedYear(last);
    if (!from || !to)
        return std::nullopt;
    return YearRange{from->first, to->last};
}

} // namespace

std::vector<Term> QueryParser::terms()
{
    std::vector<Term> terms;
    for (skipBlanks(); !atEnd(); skipBlanks())
        terms.push_back(term());
    return terms;
}

void QueryParser::skipBlanks()
{
    while (!atEnd() && m_text[m_at].isSpace())
        ++m_at;
}

Term QueryParser::term()
{
    Term term;
    term.begin = m_at;
    term.negated = isMinus(m_text[m_at]) && !blankFollows(m_at + 1);
    if (term.negated)
        ++m_at;
    const QStringView name = key();
    const auto* const known = std::ranges::find(searchKeys, foldedText(name), &SearchKey::name);
    if (known != searchKeys.end()) {
        m_at += name.size() + 1;
        readKeyed(term, *known, value(term));
    } else if (!name.isEmpty() && !blankFollows(m_at + name.size() + 1)) {
        m_at += name.size() + 1;
        value(term);
        refuse(term, unknownKey(name), false);
    } else if (isMinus(m_text[m_at]) && m_at + 1 == m_text.size()) {
        ++m_at;
        refuse(term, Failure{"search_no_words", {QStringLiteral("-")}}, true);
    } else {
        readWords(term, value(term));
    }
    term.size = m_at - term.begin;
    return term;
}

// Letters up to a colon. A word that ends with a colon and is no key is a word like any other, since titles
// are full of them.
QStringView QueryParser::key() const
{
    qsizetype end = m_at;
    while (end < m_text.size() && m_text[end].isLetter())
        ++end;
    return end > m_at && end < m_text.size() && isColon(m_text[end]) ? m_text.sliced(m_at, end - m_at)
                                                                     : QStringView();
}

QueryParser::Value QueryParser::value(Term& term)
{
    Value value;
    term.valueBegin = m_at;
    const QStringView closing = atEnd() ? QStringView() : closingQuotes(m_text[m_at]);
    value.quoted = !closing.isEmpty();
    if (value.quoted)
        ++m_at;
    const qsizetype begin = m_at;
    while (!atEnd() && !(value.quoted ? closing.contains(m_text[m_at]) : m_text[m_at].isSpace()))
        ++m_at;
    value.text = m_text.sliced(begin, m_at - begin);
    value.open = value.quoted && atEnd();
    if (value.quoted && !atEnd())
        ++m_at;
    term.isQuoted = value.quoted;
    term.isClosed = value.quoted && !value.open;
    return value;
}

void QueryParser::readWords(Term& term, const Value& value)
{
    term.words.text = trimmed(foldedText(value.text));
    if (value.quoted)
        term.words.ends = value.open ? WordEnds::Begun : WordEnds::Whole;
    if (term.words.text.empty())
        refuse(term, Failure{"search_no_words", {shown(value.text)}}, true);
    else if (value.open) {
        refuse(term, Failure{"search_open_quote", {}}, true);
        term.applies = true;
    }
}

void QueryParser::readKeyed(Term& term, const SearchKey& key, const Value& value)
{
    term.kind = key.kind;
    if (value.text.isEmpty() && !value.quoted)
        refuse(term, Failure{"search_no_value", {shown(m_text.sliced(term.begin, m_at - term.begin))}}, true);
    else if (!key.values.empty())
        readFixed(term, key, value.text);
    else if (key.kind == TermKind::Year)
        readYears(term, value.text);
    else
        readWords(term, value);
}

void QueryParser::readYears(Term& term, QStringView value)
{
    // A Japanese keyboard has the long vowel mark and the wave where others have the dash.
    std::string years = foldedText(value.toString().replace(u'ー', u'-'));
    std::ranges::replace(years, '~', '-');
    const auto range = askedYears(years);
    const std::string_view last = lastYear(years);
    // Four digits begin so; behind a blank it is 2019.
    const bool isCentury = atEnd() && (last == "19" || last == "20");
    if (!range || isCentury)
        refuse(term, Failure{"search_wrong_year", {shown(value)}}, isCentury || mayBecomeYears(years));
    else if (range->first > range->last)
        refuse(term, Failure{"search_reversed_years", {shown(value)}}, mayBecomeDecade(*range, last));
    else
        term.years = *range;
}

void QueryParser::readFixed(Term& term, const SearchKey& key, QStringView value)
{
    const std::string asked = foldedText(value);
    const auto found = std::ranges::find(key.values, asked);
    term.value = static_cast<std::uint8_t>(found - key.values.begin());
    if (found != key.values.end())
        return;
    const bool begun
        = std::ranges::any_of(key.values, [&](std::string_view each) { return each.starts_with(asked); });
    refuse(term, Failure{"search_wrong_value", {shown(value), fieldText(key.name), joined(key.values)}},
           begun);
}

// What stands at the query's end may still be half typed.
void QueryParser::refuse(Term& term, Failure why, bool mayGoOn)
{
    term.state = mayGoOn && atEnd() ? Term::State::Unfinished : Term::State::Wrong;
    term.why = std::move(why);
    term.applies = false;
}

std::optional<QString> writtenValue(const QString& text)
{
    if (text.isEmpty())
        return std::nullopt;
    if (closingQuotes(text.front()).isEmpty()
        && std::ranges::none_of(text, [](QChar c) { return c.isSpace(); }))
        return text;
    for (const Quotes& marks : quotes) {
        if (std::ranges::none_of(text, [&](QChar c) { return marks.closing.contains(c); }))
            return marks.opening.front() + text + marks.closing.front();
    }
    return std::nullopt;
}

} // namespace tessera
