#include "catalogue/catalogue.h"

#include "catalogue/storereader.h"
#include "catalogue/storewriter.h"
#include "core/keptcopy.h"

#include <QDateTime>
#include <QUndoCommand>

namespace tessera {

/// One value of one record, before and after. Both views stay in the catalogue's arena; before may be absent.
class EditCommand : public QUndoCommand
{
public:
    EditCommand(Catalogue& catalogue, std::uint32_t record, Field field, std::string_view after)
        : QUndoCommand(qtTrId("undo_edit_record"))
        , m_catalogue(catalogue)
        , m_record(record)
        , m_field(field)
        , m_before(catalogue.m_records[record][field])
        , m_after(after)
    {
    }

    void undo() override { m_catalogue.put(m_record, m_field, m_before); }
    void redo() override { m_catalogue.put(m_record, m_field, m_after); }

private:
    Catalogue& m_catalogue;
    std::uint32_t m_record;
    Field m_field;
    std::string_view m_before;
    std::string_view m_after;
};

Catalogue::Catalogue(QString path, QObject* parent)
    : QObject(parent)
    , m_path(std::move(path))
{
}

void Catalogue::readAhead()
{
    m_state = FileState::of(m_path);
    m_ahead = std::async(std::launch::async, [path = m_path] { return readStore(path); });
}

std::expected<void, Failure> Catalogue::open()
{
    if (!m_ahead.valid())
        readAhead();
    auto store = m_ahead.get();
    m_read = store.has_value();
    m_isMissing = !m_read && store.error().key == std::string_view("failure_store_missing");
    // The commands hold views of the old arena.
    m_undo.clear();
    StoredCatalogue content = store ? std::move(*store) : StoredCatalogue();
    // The old texts live until everybody has let go of the old records.
    const StoredCatalogue old{std::exchange(m_arena, std::move(content.arena)),
                              std::exchange(m_records, std::move(content.records))};
    Q_EMIT replaced();
    if (!store)
        return std::unexpected(store.error());
    return {};
}

void Catalogue::setValue(std::uint32_t record, Field field, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    const std::string_view value(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    // An editor shows an absent value as an empty one; to leave it so is no edit.
    if (m_records[record][field] == value)
        return;
    m_undo.push(new EditCommand(*this, record, field, m_arena.add(value)));
}

bool Catalogue::hasChanges() const
{
    return !m_undo.isClean();
}

std::expected<void, Failure> Catalogue::save()
{
    if (m_isMissing)
        return std::unexpected(Failure{"failure_store_none", {m_path}});
    if (!m_read)
        return std::unexpected(Failure{"failure_store_unread", {m_path}});
    // Another program's newer store is not lost under ours: it stays under a dated name.
    if (FileState::of(m_path) != m_state) {
        if (auto kept = keepAs(m_path, datedName(m_path, QDateTime::currentDateTime())); !kept)
            return std::unexpected(kept.error());
    }
    if (auto written = writeStore(m_path, m_records); !written)
        return written;
    m_state = FileState::of(m_path);
    m_undo.setClean();
    return {};
}

void Catalogue::put(std::uint32_t record, Field field, std::string_view text)
{
    m_records[record][field] = text;
    Q_EMIT recordChanged(record);
}

} // namespace tessera
