#include "favourites/listitems.h"

namespace tessera {

std::expected<std::vector<PropertyList>, Failure> readListItems(const QString& path)
{
    const auto list = readPropertyList(path);
    if (!list)
        return std::unexpected(list.error());
    if (list->kind() != PropertyList::Kind::Array)
        return std::unexpected(Failure{"failure_favourites_foreign", {path}});
    return list->items();
}

} // namespace tessera
