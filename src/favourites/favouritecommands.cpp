#include "favourites/favouritecommands.h"

namespace tessera {

AppendFavourite::AppendFavourite(Favourites& favourites, PropertyList entry)
    : QUndoCommand(qtTrId("undo_add_favourite"))
    , m_favourites(favourites)
    , m_entry(std::move(entry))
    , m_place(static_cast<std::uint32_t>(favourites.m_entries.size()))
{
}

void AppendFavourite::undo()
{
    m_favourites.takeOut({&m_place, 1});
}

void AppendFavourite::redo()
{
    const auto old = m_favourites.insert({&m_place, 1}, {&m_entry, 1});
    Q_EMIT m_favourites.appended();
}

EditFavourite::EditFavourite(Favourites& favourites, std::uint32_t favourite, FavouriteKey key,
                             PropertyList after)
    : QUndoCommand(qtTrId("undo_edit_favourite"))
    , m_favourites(favourites)
    , m_favourite(favourite)
    , m_key(key)
    , m_before(favourites.m_entries[favourite])
    , m_after(std::move(after))
{
}

void EditFavourite::undo()
{
    m_favourites.put(m_favourite, m_before, m_key);
}

void EditFavourite::redo()
{
    m_favourites.put(m_favourite, m_after, m_key);
}

RemoveFavourites::RemoveFavourites(Favourites& favourites, std::vector<std::uint32_t> places)
    : QUndoCommand(qtTrId("undo_remove_favourites"))
    , m_favourites(favourites)
    , m_places(std::move(places))
{
    m_removed.reserve(m_places.size());
    for (const std::uint32_t place : m_places)
        m_removed.push_back(favourites.m_entries[place]);
}

void RemoveFavourites::undo()
{
    const auto old = m_favourites.insert(m_places, m_removed);
    Q_EMIT m_favourites.putBackAt(m_places);
}

void RemoveFavourites::redo()
{
    m_favourites.takeOut(m_places);
}

} // namespace tessera
