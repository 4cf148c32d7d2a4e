#include "favourites/favouritefinder.h"

#include "catalogue/romfolders.h"
#include "favourites/favourites.h"

#include <algorithm>

namespace tessera {

std::optional<Found> FavouriteFinder::find()
{
    if (m_query.isEmpty())
        return std::nullopt;
    const std::span<const GameRecord> records = m_favourites.records();
    if (!m_search) {
        m_search.emplace(records);
        m_search->take(SearchTexts::fold(m_search->unfolded()));
    }
    const bool asksHave = std::ranges::any_of(
        m_query.terms(), [](const Term& term) { return term.kind == TermKind::Have && term.applies; });
    if (asksHave && m_roms)
        m_search->setHaves(m_roms->haves(records));
    return m_search->findOrNearest(m_query);
}

} // namespace tessera
