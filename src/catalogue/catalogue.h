#pragma once

#include "catalogue/gamerecord.h"
#include "catalogue/recordsort.h"
#include "catalogue/storedcatalogue.h"
#include "core/failure.h"
#include "core/keptfile.h"

#include <QObject>
#include <QUndoStack>

#include <expected>
#include <future>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace tessera {

/// The store of game records: read whole from "Tessera.xml", edited with undo, written whole when asked.
class Catalogue : public QObject
{
    Q_OBJECT

public:
    explicit Catalogue(QString path, QObject* parent = nullptr);

    const QString& path() const { return m_file.path(); }

    /// Begins to read the store beside what the caller does next; the next open() takes the result.
    void readAhead();
    /// Reads the store anew; edits and their undo history are dropped. After a failure there are no records,
    /// and save() refuses, so that a store which could not be read is never overwritten.
    std::expected<void, Failure> open();
    /// The same with what was read of the file already. Gives back what stood here before.
    StoredCatalogue replace(StoredCatalogue content);

    std::span<const GameRecord> records() const { return m_records; }
    /// The order of the records that replaced() has just told of; known then, and given once.
    std::optional<SortedRecords> takeByName() { return std::exchange(m_byName, std::nullopt); }

    /// Undoable. `record` is an index into records().
    void setValue(std::uint32_t record, Field field, const QString& text);

    /// Undoable, all at once. Indexes into records(), in any order.
    void remove(std::vector<std::uint32_t> records);

    bool hasChanges() const;
    /// A file that somebody else has written since, or that is not in our own layout, which may hold what we
    /// do not write, is kept under a dated name. Gives that name, empty where nothing had to be kept.
    std::expected<QString, Failure> save();

    QUndoStack& undoStack() { return m_undo; }

Q_SIGNALS:
    /// Every record is another one now.
    void replaced();
    void recordChanged(std::uint32_t record, Field field);
    /// The records at these indexes, rising, are gone; the others stand together now.
    void removed(const std::vector<std::uint32_t>& records);
    /// Removed ones are back, at these indexes, rising.
    void putBackAt(const std::vector<std::uint32_t>& records);

private:
    struct Ahead {
        std::expected<StoredCatalogue, Failure> store;
        SortedRecords byName;
    };

    StoredCatalogue exchange(StoredCatalogue content, SortedRecords byName);

    friend class EditCommand;
    friend class RemoveCommand;
    void put(std::uint32_t record, Field field, std::string_view text);
    void takeOut(std::span<const std::uint32_t> places);
    void putBack(std::span<const std::uint32_t> places, std::span<const GameRecord> records);

    KeptFile m_file;
    TextArena m_arena;
    std::vector<GameRecord> m_records;
    QUndoStack m_undo;
    bool m_read = false;
    bool m_isMissing = false; ///< there was no file to read
    std::future<Ahead> m_ahead;
    std::optional<SortedRecords> m_byName;
};

} // namespace tessera
