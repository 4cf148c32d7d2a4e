#include "tools/favouritesconversion.h"

#include "favourites/listitems.h"

#include <QFile>
#include <QFileInfo>

namespace tessera {

namespace {

constexpr char setKey[] = "romid";

// As a favourite's are written.
constexpr std::array writtenOrder{Field::Name,  Field::Cloneof, Field::Title, Field::Titlejp, Field::Year,
                                  Field::Maker, Field::Status,  Field::Type,  Field::Device};
static_assert(writtenOrder.size() == fieldCount);

PropertyList entryOf(const RecordDictionary& record)
{
    PropertyList entry = PropertyList::dictionary();
    for (const Field field : writtenOrder) {
        const std::string name(fieldName(field));
        const auto value = record.constFind(fieldText(name));
        if (value != record.cend())
            entry.setText(name.c_str(), *value);
    }
    return entry;
}

} // namespace

std::expected<QStringList, Failure> oldFavourites(const QString& path)
{
    const auto items = readListItems(path);
    if (!items)
        return std::unexpected(items.error());
    QStringList names;
    for (const PropertyList& entry : *items) {
        if (entry.kind() != PropertyList::Kind::Dictionary)
            continue;
        if (const auto name = entry.string(setKey))
            names << *name;
    }
    return names;
}

std::expected<QByteArray, Failure> favouritesText(const QList<RecordDictionary>& records, const QString& path)
{
    PropertyList list = PropertyList::array();
    for (const RecordDictionary& record : records)
        list.append(entryOf(record));
    return list.xml(path);
}

QString favouritesBackup(const QString& favourites, const QDateTime& when)
{
    return QFileInfo(favourites).path() + QStringLiteral("/jp.Plover.Tessera_Favorites_")
        + when.toString(QStringLiteral("yyyy-MM-dd_HHmmss")) + QStringLiteral(".xml");
}

std::expected<void, Failure> moveToBackup(const QString& favourites, const QString& backup)
{
    QFile file(favourites);
    if (file.rename(backup))
        return {};
    return std::unexpected(Failure{"favourites_not_kept", {backup, file.errorString()}});
}

} // namespace tessera
