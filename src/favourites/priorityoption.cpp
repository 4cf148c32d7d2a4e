#include "favourites/priorityoption.h"

#include "favourites/favouritekey.h"
#include "favourites/keptfile.h"

namespace tessera {

std::expected<QString, Failure> priorityOption(const QString& path, const QString& name)
{
    KeptFile file(path);
    if (!file.exists())
        return QString();
    const auto list = file.read(PropertyList::Kind::Array);
    if (!list)
        return std::unexpected(list.error());
    for (const PropertyList& entry : list->items()) {
        if (entry.kind() == PropertyList::Kind::Dictionary && entry.text(keyName(FavouriteKey::Name)) == name)
            return entry.text(keyName(FavouriteKey::Option)).value_or(QString());
    }
    return QString();
}

} // namespace tessera
