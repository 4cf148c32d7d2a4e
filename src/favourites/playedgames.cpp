#include "favourites/playedgames.h"

#include "favourites/listitems.h"

#include <algorithm>

namespace tessera {

namespace {

constexpr const char* nameKey = "name";
constexpr const char* timesKey = "times";
constexpr const char* lastKey = "last";

std::optional<Played> playedOf(const PropertyList& entry)
{
    Played played;
    played.times = entry.text(timesKey).value_or(QString()).toULongLong();
    played.last = QDateTime::fromString(entry.text(lastKey).value_or(QString()), Qt::ISODate);
    return played.times > 0 ? std::optional(played) : std::nullopt;
}

} // namespace

PlayedGames::PlayedGames(QString path, QObject* parent)
    : QObject(parent)
    , m_file(std::move(path))
{
}

std::expected<void, Failure> PlayedGames::open()
{
    m_games.clear();
    std::expected<std::vector<PropertyList>, Failure> items;
    if (m_file.exists())
        items = m_file.read(&readListItems);
    if (items) {
        for (const PropertyList& entry : *items) {
            if (entry.kind() != PropertyList::Kind::Dictionary)
                continue;
            const auto name = entry.text(nameKey);
            const auto played = playedOf(entry);
            if (name && played)
                m_games.insert(*name, *played);
        }
    }
    Q_EMIT changed();
    if (!items)
        return std::unexpected(items.error());
    return {};
}

std::expected<void, Failure> PlayedGames::save()
{
    QStringList names = m_games.keys();
    std::ranges::sort(names);
    PropertyList list = PropertyList::array();
    for (const QString& name : names) {
        const Played& played = m_games[name];
        PropertyList entry = PropertyList::dictionary();
        entry.setText(nameKey, name);
        entry.setText(timesKey, QString::number(played.times));
        if (played.last.isValid())
            entry.setText(lastKey, played.last.toUTC().toString(Qt::ISODate));
        list.append(std::move(entry));
    }
    const auto text = list.xml(m_file.path());
    const auto written = text ? m_file.write(*text) : std::unexpected(text.error());
    if (!written)
        return std::unexpected(written.error());
    return {};
}

void PlayedGames::note(const QString& name, const QDateTime& when)
{
    Played& played = m_games[name];
    ++played.times;
    played.last = when;
    Q_EMIT changed();
}

void PlayedGames::clear()
{
    m_games.clear();
    Q_EMIT changed();
}

std::optional<Played> PlayedGames::played(const QString& name) const
{
    const auto found = m_games.constFind(name);
    return found == m_games.constEnd() ? std::nullopt : std::optional(*found);
}

QStringList PlayedGames::recent(const QDateTime& since) const
{
    QStringList names;
    for (auto game = m_games.constBegin(); game != m_games.constEnd(); ++game) {
        if (game->last.isValid() && game->last >= since)
            names << game.key();
    }
    std::ranges::sort(names, [&](const QString& a, const QString& b) {
        const QDateTime& left = m_games.constFind(a)->last;
        const QDateTime& right = m_games.constFind(b)->last;
        return left != right ? left > right : a < b;
    });
    return names;
}

} // namespace tessera
