#pragma once

#include "favourites/favourites.h"

#include <QUndoCommand>

namespace tessera {

class AppendFavourite : public QUndoCommand
{
public:
    AppendFavourite(Favourites& favourites, PropertyList entry)
        : QUndoCommand(qtTrId("undo_add_favourite"))
        , m_favourites(favourites)
        , m_entry(std::move(entry))
        , m_place(static_cast<std::uint32_t>(favourites.m_entries.size()))
    {
    }

    void undo() override { m_favourites.takeOut({&m_place, 1}); }
    void redo() override
    {
        const auto old = m_favourites.insert({&m_place, 1}, {&m_entry, 1});
        Q_EMIT m_favourites.appended();
    }

private:
    Favourites& m_favourites;
    PropertyList m_entry;
    std::uint32_t m_place;
};

/// An edit of one value. It holds the whole favourite before and after it: undone, a number that became a
/// text is a number again.
class EditFavourite : public QUndoCommand
{
public:
    EditFavourite(Favourites& favourites, std::uint32_t favourite, FavouriteKey key, PropertyList after)
        : QUndoCommand(qtTrId("undo_edit_favourite"))
        , m_favourites(favourites)
        , m_favourite(favourite)
        , m_key(key)
        , m_before(favourites.m_entries[favourite])
        , m_after(std::move(after))
    {
    }

    void undo() override { m_favourites.put(m_favourite, m_before, m_key); }
    void redo() override { m_favourites.put(m_favourite, m_after, m_key); }

private:
    Favourites& m_favourites;
    std::uint32_t m_favourite;
    FavouriteKey m_key;
    PropertyList m_before;
    PropertyList m_after;
};

/// Favourites that are taken out, and come back to their old places.
class RemoveFavourites : public QUndoCommand
{
public:
    /// `places` are indexes, rising.
    RemoveFavourites(Favourites& favourites, std::vector<std::uint32_t> places)
        : QUndoCommand(qtTrId("undo_remove_favourites"))
        , m_favourites(favourites)
        , m_places(std::move(places))
    {
        for (const std::uint32_t place : m_places)
            m_removed.push_back(favourites.m_entries[place]);
    }

    void undo() override
    {
        const auto old = m_favourites.insert(m_places, m_removed);
        Q_EMIT m_favourites.putBackAt(m_places);
    }
    void redo() override { m_favourites.takeOut(m_places); }

private:
    Favourites& m_favourites;
    std::vector<std::uint32_t> m_places;
    std::vector<PropertyList> m_removed;
};

} // namespace tessera
