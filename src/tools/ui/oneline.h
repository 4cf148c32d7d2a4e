#pragma once

#include <QString>

namespace tessera {

/// With a picture of each control character in its place: a file's name may hold line feeds.
inline QString onOneLine(QString text)
{
    constexpr char16_t controlPictures = 0x2400;
    for (QChar& c : text) {
        if (c.unicode() < 0x20)
            c = QChar(static_cast<char16_t>(controlPictures + c.unicode()));
    }
    return text;
}

} // namespace tessera
