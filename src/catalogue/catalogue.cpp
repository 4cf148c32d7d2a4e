#include "catalogue/catalogue.h"

#include "catalogue/recordcommands.h"
#include "catalogue/storereader.h"
#include "catalogue/storewriter.h"

#include <algorithm>

namespace tessera {

Catalogue::Catalogue(QString path, QObject* parent)
    : QObject(parent)
    , m_file(std::move(path))
{
}

void Catalogue::readAhead()
{
    m_file.setRead();
    m_ahead = std::async(std::launch::async, [path = m_file.path()] {
        auto store = readStore(path);
        // The first order that is asked for; beside the windows it costs nobody's time.
        SortedRecords byName(
            store ? std::span<const GameRecord>(store->records) : std::span<const GameRecord>(), Field::Name);
        return Ahead{std::move(store), std::move(byName)};
    });
}

std::expected<void, Failure> Catalogue::open()
{
    if (!m_ahead.valid())
        readAhead();
    auto [store, byName] = m_ahead.get();
    m_read = store.has_value();
    m_isMissing = !m_read && store.error().key == std::string_view("failure_store_missing");
    exchange(store ? std::move(*store) : StoredCatalogue(), std::move(byName));
    if (!store)
        return std::unexpected(store.error());
    return {};
}

StoredCatalogue Catalogue::replace(StoredCatalogue content)
{
    m_file.setRead();
    m_read = true;
    m_isMissing = false;
    SortedRecords byName(content.records, Field::Name);
    return exchange(std::move(content), std::move(byName));
}

// The old texts live until everybody has let go of the old records.
StoredCatalogue Catalogue::exchange(StoredCatalogue content, SortedRecords byName)
{
    // The commands hold views of the old arena.
    m_undo.clear();
    if (!content.isOurLayout)
        m_file.setForeign();
    StoredCatalogue old{std::exchange(m_arena, std::move(content.arena)),
                        std::exchange(m_records, std::move(content.records))};
    m_byName = std::move(byName);
    Q_EMIT replaced();
    m_byName.reset();
    return old;
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

void Catalogue::remove(std::vector<std::uint32_t> records)
{
    std::ranges::sort(records);
    const auto twice = std::ranges::unique(records);
    records.erase(twice.begin(), twice.end());
    if (!records.empty())
        m_undo.push(new RemoveCommand(*this, std::move(records)));
}

bool Catalogue::hasChanges() const
{
    return !m_undo.isClean();
}

std::expected<QString, Failure> Catalogue::save()
{
    if (m_isMissing)
        return std::unexpected(Failure{"failure_store_none", {path()}});
    if (!m_read)
        return std::unexpected(Failure{"failure_store_unread", {path()}});
    auto kept = m_file.write(storeText(m_records));
    if (kept)
        m_undo.setClean();
    return kept;
}

void Catalogue::put(std::uint32_t record, Field field, std::string_view text)
{
    m_records[record][field] = text;
    Q_EMIT recordChanged(record, field);
}

// The old records live until everybody has let go of them.
void Catalogue::takeOut(std::span<const std::uint32_t> places)
{
    std::vector<GameRecord> kept;
    kept.reserve(m_records.size() - places.size());
    std::ptrdiff_t from = 0;
    for (const std::ptrdiff_t place : places) {
        kept.insert(kept.end(), m_records.begin() + from, m_records.begin() + place);
        from = place + 1;
    }
    kept.insert(kept.end(), m_records.begin() + from, m_records.end());
    m_records.swap(kept);
    Q_EMIT removed(std::vector(places.begin(), places.end()));
}

void Catalogue::putBack(std::span<const std::uint32_t> places, std::span<const GameRecord> records)
{
    std::vector<GameRecord> all;
    all.reserve(m_records.size() + places.size());
    auto next = m_records.begin();
    for (std::size_t i = 0; i < places.size(); ++i) {
        const auto before = static_cast<std::ptrdiff_t>(places[i] - all.size());
        all.insert(all.end(), next, next + before);
        next += before;
        all.push_back(records[i]);
    }
    all.insert(all.end(), next, m_records.end());
    m_records.swap(all);
    Q_EMIT putBackAt(std::vector(places.begin(), places.end()));
}

} // namespace tessera
