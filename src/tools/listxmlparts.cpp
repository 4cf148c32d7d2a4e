#include "tools/listxmlparts.h"

#include <algorithm>

namespace tessera {

namespace {

// Bytes. A smaller part is not worth a thread.
constexpr qint64 smallestPart = qint64{8} << 20;
// Real elements are shorter than this, nearly all of them.
constexpr qint64 probed = qint64{1} << 20;

QByteArray probe(QFile& file, qint64 from)
{
    return file.seek(from) ? file.read(probed) : QByteArray();
}

ElementName nameIn(const QByteArray& text)
{
    const auto game = text.indexOf("<game ");
    const auto machine = text.indexOf("<machine ");
    if (game < 0 && machine < 0)
        return ElementName::Undecided;
    return machine < 0 || (game >= 0 && game < machine) ? ElementName::Game : ElementName::Machine;
}

} // namespace

ListxmlParts partsOf(QFile& file, int most)
{
    const qint64 size = file.isSequential() ? 0 : file.size();
    const qint64 count = std::min<qint64>(most, size / smallestPart);
    ListxmlParts parts;
    if (count > 1)
        parts.name = nameIn(probe(file, 0));
    const QByteArray endTag = parts.name == ElementName::Game ? "</game>" : "</machine>";
    for (qint64 i = 1; i < count && parts.name != ElementName::Undecided; ++i) {
        const qint64 from = size / count * i;
        const auto found = probe(file, from).indexOf(endTag);
        if (found >= 0)
            parts.ends.push_back(from + found + endTag.size());
    }
    parts.ends.push_back(size);
    return parts;
}

} // namespace tessera
