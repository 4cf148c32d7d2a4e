#pragma once

#include "catalogue/have.h"
#include "catalogue/gamerecord.h"
#include "catalogue/search/folding.h"
#include "catalogue/search/query.h"
#include "catalogue/search/romaji.h"

#include <QString>

#include <algorithm>

namespace tessera::test {

/// The rules of a search once more, for one record at a time and without a thought for speed.
class PlainSearch
{
public:
    explicit PlainSearch(const GameRecord& record)
        : m_record(record)
    {
        addTexts(Field::Name, 'n');
        addTexts(Field::Title, 't');
        addTexts(Field::Titlejp, 't');
        addTexts(Field::Maker, 'm');
        addTexts(Field::Year, 'y');
    }

    bool finds(const Query& query, Have have) const
    {
        return std::ranges::all_of(query.terms(), [&](const Term& term) {
            return !term.applies || holds(term, have) != term.negated;
        });
    }

    /// Comparable ranks of a record that is found.
    std::pair<int, int> rank(const Query& query) const
    {
        int worst = 0;
        int sum = 0;
        int words = 0;
        for (const Term& term : query.terms()) {
            if (term.kind != TermKind::Words || !term.applies || term.negated)
                continue;
            const int rank = int(best(term.words, false));
            worst = std::max(worst, rank);
            sum = std::min(sum + rank, 31);
            ++words;
        }
        const Rank phrase = best({query.phrase(), WordEnds::Anywhere}, false);
        if (words > 1 && phrase <= Rank::TitleBeginning && int(phrase) <= worst)
            return {int(phrase), 0};
        return {worst, sum};
    }

private:
    struct Text {
        char field;
        bool reading;
        QString text;
    };

    void addTexts(Field field, char kind)
    {
        QString value = QString::fromUtf8(m_record[field].data(), qsizetype(m_record[field].size()));
        QStringList forms{value};
        if (value.contains(u'・') || value.contains(u'･'))
            forms << value.remove(u'・').remove(u'･');
        for (const QString& form : forms) {
            const std::string fold = folded(form.toStdString());
            m_texts.push_back({kind, false, QString::fromStdString(fold)});
            for (const std::string& reading : romajiReadings(fold))
                m_texts.push_back({kind, true, QString::fromStdString(reading)});
        }
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
        if (at == 0 && end == all.size() && text.field == 'n')
            return Rank::SetName;
        if (at == 0 && end == all.size() && text.field == 't')
            return Rank::WholeTitle;
        if (at == 0 && all.sliced(end).startsWith(u" (") && text.field == 't')
            return Rank::TitleProper;
        if (at == 0 && text.field != 'm' && text.field != 'y')
            return text.field == 'n' ? Rank::NameBeginning : Rank::TitleBeginning;
        return begins ? Rank::WordBeginning : Rank::Inside;
    }

    Rank best(const SearchedWords& words, bool inMaker) const
    {
        Rank best = Rank::None;
        const QString word = QString::fromStdString(words.text);
        const QString spelling = QString::fromStdString(shortRomajiSpelling(words.text));
        for (const Text& text : m_texts) {
            if ((inMaker && text.field != 'm') || (text.reading && !isRomaji(words.text)))
                continue;
            const QString& sought = text.reading ? spelling : word;
            for (auto at = text.text.indexOf(sought); at >= 0; at = text.text.indexOf(sought, at + 1))
                best = std::min(best, rankAt(text, sought, words.ends, at));
        }
        return best;
    }

    bool holds(const Term& term, Have have) const
    {
        const auto value = [&](Field field) { return m_record[field]; };
        switch (term.kind) {
        case TermKind::Words:
            return best(term.words, false) != Rank::None;
        case TermKind::Maker:
            return best(term.words, true) != Rank::None;
        case TermKind::Device: {
            const Text text{'d', false, QString::fromStdString(folded(value(Field::Device)))};
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
            return value(Field::Status) == statusValues[term.value];
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
};

} // namespace tessera::test
