#pragma once

#include "catalogue/storeparser.h"
#include "catalogue/storereader.h"
#include "catalogue/storescanner.h"
#include "catalogue/storewriter.h"

#include "samplerecords.h"

namespace tessera::test {

/// Puts a value in the place of "VALUE" in a store of one record that is otherwise as the converter writes
/// it.
inline QByteArray storeWithTitle(const QByteArray& value)
{
    SampleRecords sample;
    sample.add({"game", "pong", "pong", "VALUE", "ポン", "1972", "Atari", "imperfect", ""});
    return QByteArray::fromStdString(storeText(sample.store.records)).replace("VALUE", value);
}

inline QByteArray sampleStore()
{
    SampleRecords sample;
    sample.add({"game", "puckman", "puckman", "PuckMan <1>", "パックマン", "1980", "Namco & co", "good", ""});
    sample.add(
        {"mechanical", "pacman", "puckman", "Pac-Man", "Pac-Man", "198?", "Namco & co", "good", "cassette"});
    sample.add({"device", "z80", "z80", "Zilog Z80", "Zilog Z80", "????", "????", "????", ""});
    return QByteArray::fromStdString(storeText(sample.store.records));
}

/// Through the fast scanner alone.
inline std::optional<StoredCatalogue> scan(const QByteArray& bytes, std::size_t window = scanWindow)
{
    qsizetype at = 0;
    const ByteSource source = [&](char* buffer, std::size_t room) {
        const QByteArray part = bytes.mid(at, static_cast<qsizetype>(room));
        part.toStdString().copy(buffer, room);
        at += part.size();
        return static_cast<std::ptrdiff_t>(part.size());
    };
    return scanStore(source, static_cast<std::size_t>(bytes.size()), window);
}

/// The records' lines, or the failure's key.
inline QString read(const QByteArray& bytes)
{
    const auto store = readStoreText({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    return store ? lines(store->records).join(u'\n') : QString::fromLatin1(store.error().key);
}

/// The same through the XML library alone.
inline QString parse(const QByteArray& bytes)
{
    const auto store = parseStore(bytes.toStdString(), QString());
    return store ? lines(store->records).join(u'\n') : QString::fromLatin1(store.error().key);
}

} // namespace tessera::test
