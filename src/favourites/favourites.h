#pragma once

#include "catalogue/textarena.h"
#include "core/keptfile.h"
#include "core/propertylist.h"
#include "favourites/favouritekey.h"

#include <QObject>
#include <QUndoStack>

#include <cstdint>
#include <span>
#include <vector>

namespace tessera {

/// The user's favourites in the order of their file, read whole, edited with undo, written whole when asked.
/// A game may stand in it several times. Each is a copy of its own: what happens to the catalogue does not
/// touch it.
class Favourites : public QObject
{
    Q_OBJECT

public:
    enum class Opened { List, EmptyList, NoFile };

    explicit Favourites(QString path, QObject* parent = nullptr);

    QString path() const { return m_file.path(); }

    /// Reads the file anew and drops the undo history. Where there is no list in it, the old one stays.
    std::expected<Opened, Failure> open();

    /// The attributes that each favourite holds; a table arranges them as it does the catalogue's.
    std::span<const GameRecord> records() const { return m_records; }
    /// Empty where the favourite has no such key.
    QString value(std::uint32_t favourite, FavouriteKey key) const;

    /// The set names, as they stand in it.
    QStringList names() const;

    // Undoable, each. Indexes into records().
    void append(const GameRecord& game);
    /// An empty `option` is none.
    void setValue(std::uint32_t favourite, FavouriteKey key, const QString& text);
    void remove(std::vector<std::uint32_t> favourites);

    /// What the file would hold.
    std::expected<QByteArray, Failure> text() const;
    std::expected<void, Failure> write(const QByteArray& text);

    QUndoStack& undoStack() { return m_undo; }

Q_SIGNALS:
    /// All favourites were replaced.
    void replaced();
    void valueChanged(std::uint32_t favourite, FavouriteKey key);
    /// One was added at the end.
    void appended();
    /// Those at these indexes, rising, are gone; the others stand together now.
    void removed(const std::vector<std::uint32_t>& favourites);
    /// Removed ones are back, at these indexes, rising.
    void putBackAt(const std::vector<std::uint32_t>& favourites);

private:
    friend class AppendFavourite;
    friend class EditFavourite;
    friend class RemoveFavourites;

    /// A value of the file's list that is no favourite, and its place: it stays where it is.
    struct Other {
        std::size_t place;
        PropertyList value;
    };

    GameRecord recordOf(const PropertyList& entry);
    void put(std::uint32_t favourite, const PropertyList& entry, FavouriteKey key);
    /// Gives the old records, which are to live until the change has been told.
    [[nodiscard]] std::vector<GameRecord> insert(std::span<const std::uint32_t> places,
                                                 std::span<const PropertyList> entries);
    void takeOut(std::span<const std::uint32_t> places);

    KeptFile m_file;
    TextArena m_arena;
    std::vector<PropertyList> m_entries;
    std::vector<GameRecord> m_records;
    std::vector<Other> m_others;
    QUndoStack m_undo;
};

/// A favourite as it is added: every attribute of the game; an absent one reads "(null)".
PropertyList favouriteOf(const GameRecord& game);

} // namespace tessera
