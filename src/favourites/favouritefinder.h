#pragma once

#include "catalogue/search/gamesearch.h"

#include <memory>
#include <optional>

namespace tessera {

class Favourites;
class RomFolders;

/// Searches the favourites as the game list is searched. They are few: what a search needs of them is
/// prepared when it is asked for.
class FavouriteFinder
{
public:
    explicit FavouriteFinder(const Favourites& favourites)
        : m_favourites(favourites)
    {
    }

    void setQuery(const QString& text) { m_query = Query(text); }
    const Query& query() const { return m_query; }
    void setRomFolders(std::shared_ptr<const RomFolders> folders) { m_roms = std::move(folders); }
    /// The favourites are others now.
    void forget() { m_search.reset(); }

    /// Or what is nearest. Nothing where the query lets every favourite through.
    std::optional<Found> find();

private:
    const Favourites& m_favourites;
    Query m_query;
    std::shared_ptr<const RomFolders> m_roms;
    std::optional<GameSearch> m_search;
};

} // namespace tessera
