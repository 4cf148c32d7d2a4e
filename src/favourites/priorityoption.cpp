#include "favourites/priorityoption.h"

#include "favourites/favouritekey.h"
#include "favourites/listitems.h"

#include <QFile>

namespace tessera {

std::expected<QString, Failure> priorityOption(const QString& path, const QString& name)
{
    if (!QFile::exists(path))
        return QString();
    const auto items = readListItems(path);
    if (!items)
        return std::unexpected(items.error());
    for (const PropertyList& entry : *items) {
        if (entry.kind() == PropertyList::Kind::Dictionary && entry.text(keyName(FavouriteKey::Name)) == name)
            return entry.text(keyName(FavouriteKey::Option)).value_or(QString());
    }
    return QString();
}

} // namespace tessera
