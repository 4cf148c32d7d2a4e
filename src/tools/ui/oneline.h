#pragma once

#include <QString>

namespace tessera {

/// With a sign in the place of each control character: a file's name may hold line feeds.
inline QString onOneLine(QString text)
{
    for (QChar& c : text) {
        if (c == u'\n' || c == u'\r')
            c = u'\u21B5';
        else if (c.unicode() < 0x20)
            c = QChar::ReplacementCharacter;
    }
    return text;
}

} // namespace tessera
