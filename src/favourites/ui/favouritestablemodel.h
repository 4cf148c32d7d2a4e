#pragma once

#include "catalogue/ui/arrangedtablemodel.h"
#include "favourites/favourites.h"

namespace tessera {

class PlayedGames;

/// The columns in their first order; the set name is the first and sets the initial sort.
enum class FavouriteColumn : std::uint8_t {
    Name,
    Title,
    Titlejp,
    Year,
    Maker,
    Option,
    Cloneof,
    Device,
    Status,
    Type,
    Times,
    Last
};

/// The arranged favourites, one a row, with what was played of them.
class FavouritesTableModel : public ArrangedTableModel
{
    Q_OBJECT

public:
    static constexpr int columns = 12;
    static constexpr std::array hiddenColumns{FavouriteColumn::Cloneof, FavouriteColumn::Device,
                                              FavouriteColumn::Status, FavouriteColumn::Type};

    /// The list shows the favourites; `reload()` is called whenever they become others.
    FavouritesTableModel(Favourites& favourites, ArrangedList& list, const PlayedGames& played,
                         const ColorTransformer& colors, DefaultsController& defaults,
                         QObject* parent = nullptr);

    /// The favourites of now, in the order of before.
    void reload();
    /// Favourites, by their indexes, whose set is not in the catalogue any more.
    void setGone(RecordSet gone);

    QVariant data(const QModelIndex& index, int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    void showPlayed();
    void showFavourite(std::uint32_t favourite, FavouriteKey key);
    struct Sort {
        std::optional<FavouriteColumn> column; ///< nothing: as the file has them
        bool ascending;
    };

    void arrange(const Sort& sort);
    QString shown(std::uint32_t favourite, FavouriteColumn column) const;
    std::optional<ColumnSort> secondSort() const override;
    QVariant goneData(std::uint32_t favourite, FavouriteColumn column, int role) const;
    void setText(const QModelIndex& index, const QString& text) override;

    Favourites& m_favourites;
    const PlayedGames& m_played;
    RecordSet m_gone;
    std::vector<Sort> m_sorts{{std::nullopt, true}}; ///< each column once, the last one counts first
};

} // namespace tessera
