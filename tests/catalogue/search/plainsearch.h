#pragma once

#include "catalogue/have.h"
#include "catalogue/gamerecord.h"
#include "catalogue/search/folding.h"
#include "catalogue/search/query.h"
#include "catalogue/search/looseform.h"
#include "catalogue/search/kanareading.h"
#include "catalogue/search/romaji.h"
#include "catalogue/search/wordsearch.h"

#include <QString>

#include <algorithm>
#include <array>
#include <cctype>
#include <span>

namespace tessera::test {

/// The rules of a search once more, for one record at a time and without a thought for speed.
class PlainSearch
{
public:
    explicit PlainSearch(const GameRecord& record)
        : m_record(record)
    {
        addTexts(Field::Name, NameMark);
        addTexts(Field::Title, TitleMark);
        if (record[Field::Titlejp] != record[Field::Title])
            addTexts(Field::Titlejp, TitleMark);
        addTexts(Field::Maker, MakerMark);
        addTexts(Field::Year, YearMark);
    }

    bool finds(const Query& query, Have have) const
    {
        const bool isPhrase = phrase(query) != noScore;
        return std::ranges::all_of(query.terms(), [&](const Term& term) {
            if (!term.applies)
                return true;
            const bool isWord = term.kind == TermKind::Words && !term.negated;
            return (isWord && isPhrase) || holds(term, have) != term.negated;
        });
    }

    /// Comparable ranks of a record that is found, but for what decides between equal ones: rank, sum, form.
    std::array<int, 3> rank(const Query& query) const
    {
        const auto [worst, sum] = together(query);
        const int rank = worst >> 2;
        return {rank == static_cast<int>(Rank::FirstPart) ? rank - 1 : rank, sum, worst & 3};
    }

    /// What decides between two that fit equally well; `content` is all records.
    std::array<int, 7> tie(const Query& query, std::span<const GameRecord> content) const
    {
        const auto isHead = [](const GameRecord& record) {
            return record[Field::Cloneof].empty() || record[Field::Cloneof] == record[Field::Name];
        };
        const auto head
            = [&](const GameRecord& record) { return record[isHead(record) ? Field::Name : Field::Cloneof]; };
        int family = 0;
        int year = unknownYear.first;
        const GameRecord* parent = nullptr;
        for (const GameRecord& each : content) {
            if (head(each) != head(m_record))
                continue;
            ++family;
            if (isHead(each)) {
                year = recordedYear(each[Field::Year]).value_or(unknownYear).last;
                parent = parent ? parent : &each;
            }
        }
        int logarithm = 0;
        for (int size = family; size > 0; size /= 2)
            ++logarithm;
        const auto type = std::ranges::find(typeValues, m_record[Field::Type]) - typeValues.begin();
        const bool works = m_record[Field::Status] == "good" || m_record[Field::Status] == "imperfect";
        const auto fits = [&](const PlainSearch& search) {
            return search.together(query)[0] >> 2 <= static_cast<int>(Rank::PartProper);
        };
        // A clone is as good as its parent under a name that the parent has not.
        const bool isFirst = isHead(m_record)
            || (query.ranks() && fits(*this) && parent != nullptr && !fits(PlainSearch(*parent)));
        const bool isFirstPart = together(query)[0] >> 2 == static_cast<int>(Rank::FirstPart);
        return {std::min(int(type), 3),
                isCopied() ? 1 : 0,
                isFirst ? 0 : 1,
                works ? 0 : 1,
                m_record[Field::Titlejp].empty() || m_record[Field::Title] == m_record[Field::Titlejp] ? 1
                                                                                                       : 0,
                (isFirstPart ? 1 : 0) - std::min(logarithm, 7),
                std::clamp((year - 1970) / 2, 0, 31)};
    }

private:
    // What a rank adds to the sum.
    static int weight(int score)
    {
        const int rank = std::min(score >> 2, 15);
        return rank == static_cast<int>(Rank::FirstPart)    ? rank - 1
            : rank == static_cast<int>(Rank::NameBeginning) ? rank + 1
                                                            : rank;
    }

    // The worst score and the sum of ranks.
    std::array<int, 2> together(const Query& query) const
    {
        int worst = 0;
        int sum = 0;
        const std::vector<const SearchedWords*> words = query.rankedWords();
        for (const SearchedWords* word : words) {
            const int score = best(*word, everyField, false);
            worst = std::max(worst, score);
            sum = std::min(sum + weight(score), 31);
        }
        if (const int together = phrase(query); words.size() > 1 && together <= worst) {
            worst = together;
            sum = 0;
        }
        // Whose set name is one of the words comes first, by their sum.
        if (words.size() > 1 && isCovered(words))
            worst = std::min(worst, int{score(Rank::Covered, WordForm::Plain)});
        for (const Term& term : query.terms()) {
            const bool isOfField = term.kind == TermKind::Title || term.kind == TermKind::Name;
            if (isOfField && term.applies && !term.negated) {
                const int score = best(term.words, fieldsOf(term.kind), false);
                worst = std::max(worst, score);
                sum = std::min(sum + weight(score), 31);
            }
        }
        const int rank = worst >> 2;
        if (m_record[Field::Type] == "device" && rank > static_cast<int>(Rank::TitleProper)
            && worst != noScore)
            worst += (static_cast<int>(Rank::InsideName) - static_cast<int>(Rank::TitleProper)) << 2;
        return {worst, sum};
    }

    bool isCopied() const
    {
        const std::string title(m_record[Field::Title]);
        const std::string texts = std::string(m_record[Field::Maker]) + '|'
            + (title.contains('(') ? title.substr(title.find('(')) : std::string());
        return texts.contains("bootleg") || texts.contains("hack");
    }

    static std::string withoutNumber(std::string word)
    {
        while (!word.empty() && std::isdigit(static_cast<unsigned char>(word.back())) != 0)
            word.pop_back();
        return word;
    }

    struct Text {
        FieldMark field;
        QString text;
    };
    struct Form {
        FieldMark field;
        LooseForm form;
    };

    void addTexts(Field field, FieldMark mark)
    {
        QString value = QString::fromUtf8(m_record[field].data(), qsizetype(m_record[field].size()));
        const std::string whole = folded(value.toStdString());
        m_texts.push_back({mark, QString::fromStdString(whole)});
        if (value.contains(u'・') || value.contains(u'･'))
            m_texts.push_back(
                {mark, QString::fromStdString(folded(value.remove(u'・').remove(u'･').toStdString()))});
        if (mark == TitleMark)
            return addTitles(whole);
        add(m_loose, mark, LooseForm(whole));
        addReadings(mark, whole);
        if (mark == MakerMark)
            addRomanised(mark, LooseForm(whole));
    }

    void addTitles(const std::string& whole)
    {
        const std::string maker = folded(m_record[Field::Maker]);
        const auto titles = titlesProper(whole);
        const FieldMark mark = titles.size() > 1 ? AlternativeMark : TitleMark;
        for (const std::string_view title : titles) {
            LooseForm form(title);
            form.beginPartBehind(LooseForm(std::string_view(maker).substr(0, maker.find(' '))));
            add(m_loose, mark, form);
            for (const std::string& letters : initials(form)) {
                LooseForm one;
                one.append(letters, Edge::Part);
                add(m_loose, InitialsMark, one);
            }
            addReadings(mark, title);
            addRomanised(RomanisedMark, form);
        }
    }

    void addRomanised(FieldMark mark, const LooseForm& form)
    {
        LooseForm romanised;
        bool isJapanese = false;
        for (std::size_t i = 0; i < form.text.size(); i = form.wordEnd(i)) {
            const std::string word = form.text.substr(i, form.wordEnd(i) - i);
            isJapanese = isJapanese || readsLikeJapanese(word);
            romanised.append(isRomaji(word) ? shortRomajiSpelling(word) : word, form.edges[i]);
        }
        if (isJapanese)
            add(m_romaji, mark, romanised);
    }

    void addReadings(FieldMark mark, std::string_view text)
    {
        for (const std::string& reading : romajiReadings(text)) {
            LooseForm form;
            Edge edge = Edge::Part;
            char before = 0;
            for (const char c : reading) {
                if (c == ' ' || c == partSign) {
                    edge = c == partSign ? Edge::Part : std::max(edge, Edge::Word);
                    continue;
                }
                if (edge == Edge::None && (std::isalpha(c) != 0) != (std::isalpha(before) != 0))
                    edge = Edge::Word;
                form.append(std::string(1, c), edge);
                edge = Edge::None;
                before = c;
            }
            add(m_romaji, mark, form);
        }
    }

    static void add(std::vector<Form>& forms, FieldMark mark, const LooseForm& form)
    {
        if (!form.text.empty())
            forms.push_back({mark, form});
    }

    static int classOf(QStringView text, qsizetype at)
    {
        if (at < 0 || at >= text.size())
            return 0;
        if (text[at].isLowSurrogate())
            --at;
        char32_t c = text[at].unicode();
        if (text[at].isHighSurrogate() && at + 1 < text.size())
            c = QChar::surrogateToUcs4(text[at], text[at + 1]);
        if (c >= 0x3041 && c <= 0x30FA && c != 0x30A0)
            return 2;
        if (c == 0x3005 || c == 0x3007 || (c >= 0x3400 && c <= 0x9FFF) || (c >= 0x20000 && c <= 0x2FFFF))
            return 3;
        return QChar::isLetterOrNumber(c) ? 1 : 0;
    }

    static bool wordsMeet(QStringView text, qsizetype at)
    {
        const int before = classOf(text, at - 1);
        return before == 0 || before != classOf(text, at);
    }

    static Rank rankAt(const Text& text, QStringView word, WordEnds ends, qsizetype at)
    {
        const QStringView all = text.text;
        const qsizetype end = at + word.size();
        const bool begins = at == 0 || wordsMeet(all, at);
        if (ends != WordEnds::Anywhere && !begins)
            return Rank::None;
        if (ends == WordEnds::Whole && end < all.size() && classOf(all, end) != 0
            && classOf(all, end) == classOf(all, end - 1))
            return Rank::None;
        if (at == 0 && end == all.size() && text.field == NameMark)
            return Rank::SetName;
        if (at == 0 && (end == all.size() || all.sliced(end).startsWith(u" (")) && text.field == TitleMark)
            return Rank::TitleProper;
        if (at == 0 && text.field != MakerMark && text.field != YearMark)
            return text.field == NameMark ? Rank::NameBeginning : Rank::TitleBeginning;
        return begins ? Rank::WordBeginning : Rank::Inside;
    }

    static Rank looseRankAt(const Form& form, std::size_t at, std::size_t size, const LooseRules& rules)
    {
        const std::string& text = form.form.text;
        const std::vector<Edge>& edges = form.form.edges;
        const std::size_t end = at + size;
        const Edge behind = end == text.size() ? Edge::Part : edges[end];
        bool crosses = false;
        for (std::size_t i = at + 1; i < end; ++i)
            crosses = crosses || edges[i] == Edge::Word || edges[i] == Edge::Part;
        if (edges[at] == Edge::None)
            return rules.inside && !crosses ? Rank::Inside : Rank::None;
        if (behind == Edge::None) {
            const bool splitsNumber = std::isdigit(text[end - 1]) != 0 && std::isdigit(text[end]) != 0;
            if (rules.wholeOnly || splitsNumber || (crosses && size < 6))
                return Rank::None;
        }
        if (rules.atBeginning && at != 0)
            return Rank::None;
        switch (form.field) {
        case InitialsMark:
            return rules.asInitials && at == 0 && (end == text.size() || std::isdigit(text[end - 1]) != 0)
                ? Rank::Initials
                : Rank::None;
        case NameMark:
            return at != 0 ? Rank::WordBeginning : end == text.size() ? Rank::SetName : Rank::NameBeginning;
        case MakerMark:
        case YearMark:
            return Rank::WordBeginning;
        default:
            break;
        }
        if (at == 0)
            return end == text.size()  ? Rank::TitleProper
                : behind == Edge::Part ? Rank::FirstPart
                                       : Rank::TitleBeginning;
        if (edges[at] == Edge::Part)
            return behind == Edge::Part ? Rank::PartProper : Rank::PartBeginning;
        return Rank::WordBeginning;
    }

    static void improve(int& best, Rank rank, WordForm form)
    {
        if (rank != Rank::None)
            best = std::min(best, int{score(rank, form)});
    }

    static void improveLoosely(int& best, const std::vector<Form>& forms, std::string_view word,
                               bool romanised, bool reading, const LooseRules& rules)
    {
        for (const Form& form : forms) {
            if (word.empty() || (rules.fields & setOf(form.field)) == 0)
                continue;
            for (auto at = form.form.text.find(word); at != std::string::npos;
                 at = form.form.text.find(word, at + 1)) {
                const Rank rank = looseRankAt(form, at, word.size(), rules);
                const bool isRomanised = form.field == RomanisedMark || (reading && form.field == MakerMark);
                if (isRomanised && (!romanised || rank == Rank::Inside))
                    continue;
                improve(best, rank,
                        isRomanised                         ? WordForm::Romanised
                            : reading                       ? WordForm::Reading
                            : form.field == AlternativeMark ? WordForm::Alternative
                                                            : WordForm::Plain);
            }
        }
    }

    static bool isJapanese(const std::string& word)
    {
        return readsLikeJapanese(withoutNumber(word))
            || std::ranges::any_of(word, [](char c) { return (c & 0x80) != 0; });
    }

    static bool isRoman(const std::string& word)
    {
        return looseWord(word) != word && isNumeral(looseWord(word));
    }

    static std::string reading(const std::string& word)
    {
        std::string text;
        if (const std::string letters = withoutNumber(word); isRomaji(letters)) {
            if (!isRoman(letters))
                text = shortRomajiSpelling(letters) + word.substr(letters.size());
        } else if (const auto readings = romajiReadings(word); !readings.empty())
            text = readings.front().contains(unreadSign) ? std::string() : readings.front();
        std::erase(text, ' ');
        return text;
    }

    static FieldSet fieldsOf(TermKind kind)
    {
        switch (kind) {
        case TermKind::Title:
            return setOf(TitleMark) | setOf(AlternativeMark) | setOf(RomanisedMark) | setOf(InitialsMark);
        case TermKind::Name:
            return setOf(NameMark);
        case TermKind::Maker:
            return setOf(MakerMark);
        default:
            return everyField;
        }
    }

    int best(const SearchedWords& words, FieldSet fields, bool negated) const
    {
        int best = noScore;
        const QString word = QString::fromStdString(words.text);
        const bool isQuoted = words.ends != WordEnds::Anywhere;
        const std::string loose = looseWord(words.text);
        const bool onlyAsWord = negated && !isQuoted && (isNumeral(loose) || loose.size() == 1);
        for (const Text& text : m_texts) {
            if ((fields & setOf(text.field)) == 0 || onlyAsWord)
                continue;
            for (auto at = text.text.indexOf(word); at >= 0; at = text.text.indexOf(word, at + 1)) {
                const Rank rank = rankAt(text, word, words.ends, at);
                const bool isInName
                    = rank == Rank::Inside && text.field == NameMark && words.text.size() >= 3;
                improve(best, isInName ? Rank::InsideName : rank, WordForm::Plain);
            }
        }
        if (!isQuoted && (onlyAsWord || isNumeral(loose) || (!negated && loose.size() > 1)))
            improveLoosely(best, m_loose, loose, false, false,
                           {.wholeOnly = negated, .asInitials = mayBeInitials(loose), .fields = fields});
        const std::string read = reading(words.text);
        improveLoosely(best, m_romaji, read, isJapanese(words.text) && !negated, true,
                       {.wholeOnly = words.ends == WordEnds::Whole,
                        .atBeginning = negated || read.size() < 4,
                        .inside = !isQuoted && read.size() >= 4 && isRomaji(words.text),
                        .fields = fields});
        return best;
    }

    Score phrase(const Query& query) const
    {
        int best = noScore;
        std::string loose;
        std::string read;
        bool japanese = false;
        const std::vector<const SearchedWords*> words = query.rankedWords();
        if (words.size() < 2 || std::ranges::any_of(words, [](const SearchedWords* word) {
                return word->ends != WordEnds::Anywhere;
            }))
            return noScore;
        for (const SearchedWords* word : words) {
            loose += looseWord(word->text);
            read += reading(word->text).empty() ? looseWord(word->text) : reading(word->text);
            japanese = japanese || (!reading(word->text).empty() && isJapanese(word->text));
        }
        improveLoosely(best, m_loose, loose, false, false, {.asInitials = mayBeInitials(loose)});
        improveLoosely(best, m_romaji, read, japanese, true, {});
        return static_cast<Score>(best);
    }

    bool isInMakerOrYear(const std::string& word) const
    {
        return std::ranges::any_of(m_loose, [&](const Form& form) {
            if (form.field != MakerMark && form.field != YearMark)
                return false;
            for (auto at = form.form.text.find(word); at != std::string::npos;
                 at = form.form.text.find(word, at + 1)) {
                if (form.form.edges[at] != Edge::None)
                    return true;
            }
            return false;
        });
    }

    bool isCovered(const std::vector<const SearchedWords*>& searched) const
    {
        std::vector<std::string> words;
        for (const SearchedWords* word : searched)
            words.push_back(looseWord(word->text));
        std::erase(words, std::string());
        for (const Form& form : m_loose) {
            if (form.field != TitleMark && form.field != AlternativeMark)
                continue;
            for (std::size_t i = 0; i < form.form.text.size(); ++i) {
                if (form.form.edges[i] == Edge::Part && covers(form.form, i, words))
                    return true;
            }
        }
        return false;
    }

    bool covers(const LooseForm& form, std::size_t at, std::vector<std::string> words) const
    {
        const auto edgeAt = [&](std::size_t i) { return i == form.text.size() ? Edge::Part : form.edges[i]; };
        do {
            const auto fits = std::ranges::find_if(words, [&](const std::string& word) {
                return form.text.compare(at, word.size(), word) == 0
                    && edgeAt(at + word.size()) != Edge::None;
            });
            if (fits == words.end())
                return false;
            at += fits->size();
            words.erase(fits);
        } while (edgeAt(at) != Edge::Part);
        return std::ranges::all_of(words, [&](const std::string& word) { return isInMakerOrYear(word); });
    }

    bool holds(const Term& term, Have have) const
    {
        const auto value = [&](Field field) { return m_record[field]; };
        switch (term.kind) {
        case TermKind::Words:
            return best(term.words, everyField, term.negated) != noScore;
        case TermKind::Title:
        case TermKind::Name:
        case TermKind::Maker:
            return best(term.words, fieldsOf(term.kind), term.negated) != noScore;
        case TermKind::Parent:
            return folded(value(Field::Name)) == term.words.text
                || folded(value(Field::Cloneof)) == term.words.text;
        case TermKind::Device: {
            const Text text{YearMark, QString::fromStdString(folded(value(Field::Device)))};
            const QString sought = QString::fromStdString(term.words.text);
            for (auto at = text.text.indexOf(sought); at >= 0; at = text.text.indexOf(sought, at + 1)) {
                if (rankAt(text, sought, term.words.ends, at) != Rank::None)
                    return true;
            }
            return false;
        }
        case TermKind::Year: {
            const auto year = recordedYear(value(Field::Year));
            return year && term.years.first <= year->first && year->last <= term.years.last;
        }
        case TermKind::Status:
            if (askedStatuses[term.value] == "working")
                return value(Field::Status) == "good" || value(Field::Status) == "imperfect";
            return value(Field::Status) == askedStatuses[term.value];
        case TermKind::Type:
            return value(Field::Type) == typeValues[term.value];
        case TermKind::Clone: {
            const bool clone = !value(Field::Cloneof).empty() && value(Field::Cloneof) != value(Field::Name);
            return clone == (yesNoValues[term.value] == "yes");
        }
        case TermKind::Have: {
            const std::string_view asked = haveValues[term.value];
            return asked == "yes" ? have != Have::Missing
                : asked == "no"   ? have == Have::Missing
                : asked == "own"  ? have == Have::Here
                                  : have == Have::InParent;
        }
        }
        return false;
    }

    const GameRecord& m_record;
    std::vector<Text> m_texts;
    std::vector<Form> m_loose;
    std::vector<Form> m_romaji;
};

} // namespace tessera::test
