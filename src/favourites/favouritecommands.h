#pragma once

#include "favourites/favourites.h"

#include <QUndoCommand>

namespace tessera {

class AppendFavourite : public QUndoCommand
{
public:
    AppendFavourite(Favourites& favourites, PropertyList entry);

    void undo() override;
    void redo() override;

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
    EditFavourite(Favourites& favourites, std::uint32_t favourite, FavouriteKey key, PropertyList after);

    void undo() override;
    void redo() override;

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
    RemoveFavourites(Favourites& favourites, std::vector<std::uint32_t> places);

    void undo() override;
    void redo() override;

private:
    Favourites& m_favourites;
    std::vector<std::uint32_t> m_places;
    std::vector<PropertyList> m_removed;
};

} // namespace tessera
