#include "favourites/favourites.h"

#include "catalogue/recorddictionary.h"
#include "favourites/favouritecommands.h"
#include "favourites/listitems.h"

#include <algorithm>

namespace tessera {

namespace {

// The order in which the attributes of a new favourite are written.
constexpr std::array writtenOrder{Field::Name,  Field::Cloneof, Field::Title, Field::Titlejp, Field::Year,
                                  Field::Maker, Field::Status,  Field::Type,  Field::Device};
static_assert(writtenOrder.size() == fieldCount);

} // namespace

PropertyList favouriteOf(const GameRecord& game)
{
    PropertyList entry = PropertyList::dictionary();
    for (const Field field : writtenOrder)
        entry.setText(keyName(keyOf(field)), shownValue(game, field));
    return entry;
}

Favourites::Favourites(QString path, QObject* parent)
    : QObject(parent)
    , m_file(std::move(path))
{
}

std::expected<Favourites::Opened, Failure> Favourites::open()
{
    if (!m_file.exists())
        return Opened::NoFile;
    auto items = m_file.read(&readListItems);
    if (!items)
        return std::unexpected(items.error());
    if (items->empty())
        return Opened::EmptyList;

    m_undo.clear();
    // Listeners of replaced() may still hold old records, which are views of the old texts.
    const TextArena oldTexts = std::exchange(m_arena, {});
    const std::vector<GameRecord> oldRecords = std::exchange(m_records, {});
    m_entries.clear();
    m_others.clear();
    for (std::size_t place = 0; place < items->size(); ++place) {
        PropertyList& item = (*items)[place];
        if (item.kind() == PropertyList::Kind::Dictionary)
            m_entries.push_back(std::move(item));
        else
            m_others.push_back({place, std::move(item)});
    }
    for (const PropertyList& entry : m_entries)
        m_records.push_back(recordOf(entry));
    Q_EMIT replaced();
    return Opened::List;
}

GameRecord Favourites::recordOf(const PropertyList& entry)
{
    GameRecord record;
    for (std::size_t i = 0; i < fieldCount; ++i) {
        const auto field = static_cast<Field>(i);
        if (const auto text = entry.text(keyName(keyOf(field))))
            record[field] = m_arena.add(text->toStdString());
    }
    return record;
}

QString Favourites::value(std::uint32_t favourite, FavouriteKey key) const
{
    return m_entries[favourite].text(keyName(key)).value_or(QString());
}

QStringList Favourites::names() const
{
    QStringList names;
    for (const GameRecord& record : m_records) {
        if (record.has(Field::Name))
            names << fieldText(record[Field::Name]);
    }
    return names;
}

void Favourites::append(const GameRecord& game)
{
    m_undo.push(new AppendFavourite(*this, favouriteOf(game)));
}

void Favourites::setValue(std::uint32_t favourite, FavouriteKey key, const QString& text)
{
    // An editor shows an absent value as an empty one; to leave it so is no edit.
    if (value(favourite, key) == text)
        return;
    PropertyList after = m_entries[favourite];
    if (key == FavouriteKey::Option && text.isEmpty())
        after.remove(keyName(key));
    else
        after.setText(keyName(key), text);
    m_undo.push(new EditFavourite(*this, favourite, key, std::move(after)));
}

void Favourites::remove(std::vector<std::uint32_t> favourites)
{
    std::ranges::sort(favourites);
    const auto twice = std::ranges::unique(favourites);
    favourites.erase(twice.begin(), twice.end());
    if (!favourites.empty())
        m_undo.push(new RemoveFavourites(*this, std::move(favourites)));
}

std::expected<QByteArray, Failure> Favourites::text() const
{
    PropertyList list = PropertyList::array();
    std::size_t place = 0;
    auto other = m_others.begin();
    const auto appendOthers = [&](bool all) {
        for (; other != m_others.end() && (all || other->place <= place); ++other, ++place)
            list.append(other->value);
    };
    for (const PropertyList& entry : m_entries) {
        appendOthers(false);
        list.append(entry);
        ++place;
    }
    appendOthers(true);
    return list.xml(path());
}

std::expected<void, Failure> Favourites::write(const QByteArray& text)
{
    if (const auto written = m_file.write(text); !written)
        return std::unexpected(written.error());
    m_undo.setClean();
    return {};
}

void Favourites::put(std::uint32_t favourite, const PropertyList& entry, FavouriteKey key)
{
    m_entries[favourite] = entry;
    m_records[favourite] = recordOf(entry);
    Q_EMIT valueChanged(favourite, key);
}

std::vector<GameRecord> Favourites::insert(std::span<const std::uint32_t> places,
                                           std::span<const PropertyList> entries)
{
    std::vector<GameRecord> records = m_records;
    for (std::size_t i = 0; i < places.size(); ++i) {
        const std::ptrdiff_t place = places[i];
        m_entries.insert(m_entries.begin() + place, entries[i]);
        records.insert(records.begin() + place, recordOf(entries[i]));
    }
    m_records.swap(records);
    return records;
}

// Listeners of removed() may still hold the old records: these live to the end of the function.
void Favourites::takeOut(std::span<const std::uint32_t> places)
{
    std::vector<GameRecord> records = m_records;
    for (std::size_t i = places.size(); i > 0; --i) {
        const std::ptrdiff_t place = places[i - 1];
        m_entries.erase(m_entries.begin() + place);
        records.erase(records.begin() + place);
    }
    m_records.swap(records);
    Q_EMIT removed({places.begin(), places.end()});
}

} // namespace tessera
