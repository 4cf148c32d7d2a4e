#include "artwork/picturelookup.h"

#include <QFileInfo>

#include <array>

namespace tessera {

namespace {

// What follows the folder; %1 is the set.
constexpr std::array places{"/%1/0000.png", "/%1.png"};

std::optional<QString> pictureOf(const QString& name, const QString& folder)
{
    if (folder.isEmpty() || !isPlainFileName(name))
        return std::nullopt;
    for (const char* place : places) {
        QString path = folder + QString::fromLatin1(place).arg(name);
        if (const QFileInfo info(path); info.exists() && !info.isDir())
            return path;
    }
    return std::nullopt;
}

} // namespace

std::optional<FoundPicture> findPicture(const WantedPicture& wanted)
{
    if (const auto own = pictureOf(wanted.name, wanted.folder))
        return FoundPicture{*own, false};
    if (!wanted.parent || !isPlainFileName(wanted.name))
        return std::nullopt;
    const auto parents = pictureOf(*wanted.parent, wanted.folder);
    return parents ? std::optional(FoundPicture{*parents, true}) : std::nullopt;
}

bool isPlainFileName(const QString& name)
{
    return !name.isEmpty() && !name.startsWith(u'.') && !name.contains(u'/') && !name.contains(QChar(0));
}

} // namespace tessera
