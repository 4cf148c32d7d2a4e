#pragma once

#include "catalogue/arrangedlist.h"
#include "catalogue/search/gamesearch.h"

#include <QFile>
#include <QString>
#include <QStringList>

#include <map>

namespace tessera::test {

/// What a player types, the sets that may be meant, and what makes it hard to find.
struct ScoredQuery {
    QString text;
    QStringList meant;
    QString kind;
};

/// One a line: query, sets parted by |, kind; tabs between them.
inline std::vector<ScoredQuery> readQueries(const QString& path)
{
    std::vector<ScoredQuery> queries;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return queries;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList parts = line.split(u'\t');
        if (parts.size() == 3)
            queries.push_back({parts[0], parts[1].split(u'|'), parts[2]});
    }
    return queries;
}

/// How many queries have what is meant as the first row, and among the first five.
struct SearchScore {
    int queries = 0;
    int first = 0;
    int amongFive = 0;
};

/// Asks a catalogue as the game list does.
class ScoredSearch
{
public:
    explicit ScoredSearch(std::span<const GameRecord> records)
        : m_search(records)
    {
        m_search.take(SearchTexts::fold(m_search.unfolded()));
        m_list.setContent(records);
    }

    /// The place of what is meant, from 0; behind the fifth it does not matter which.
    std::size_t place(const ScoredQuery& query)
    {
        constexpr std::size_t most = 5;
        m_list.setFound(m_search.findOrNearest(Query(query.text)));
        for (std::size_t row = 0; row < std::min(most, m_list.size()); ++row) {
            if (query.meant.contains(QString::fromUtf8(m_list[row][Field::Name])))
                return row;
        }
        return most;
    }

    /// By kind; those that are not first are told.
    std::map<QString, SearchScore> score(const std::vector<ScoredQuery>& queries)
    {
        std::map<QString, SearchScore> scores;
        for (const ScoredQuery& query : queries) {
            const std::size_t place = this->place(query);
            SearchScore& score = scores[query.kind];
            ++score.queries;
            score.first += place == 0 ? 1 : 0;
            score.amongFive += place < 5 ? 1 : 0;
            if (place > 0)
                qInfo("not first: %s, meant as %s (%s)", qPrintable(query.text),
                      qPrintable(query.meant.join(u'|')), qPrintable(query.kind));
        }
        return scores;
    }

private:
    GameSearch m_search;
    ArrangedList m_list;
};

inline SearchScore sumOf(const std::map<QString, SearchScore>& scores)
{
    SearchScore sum;
    for (const auto& [kind, score] : scores) {
        sum.queries += score.queries;
        sum.first += score.first;
        sum.amongFive += score.amongFive;
    }
    return sum;
}

} // namespace tessera::test
