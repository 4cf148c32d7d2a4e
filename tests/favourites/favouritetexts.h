#pragma once

#include "catalogue/gamerecord.h"

#include <QByteArray>
#include <QFile>
#include <QString>

namespace tessera::test {

/// A favourites file that holds these values.
inline QByteArray listFile(const QByteArray& values)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
           "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
           "<plist version=\"1.0\">\n"
        + (values.isEmpty() ? QByteArray("<array/>\n") : "<array>\n" + values + "</array>\n") + "</plist>\n";
}

/// One favourite with a title and, unless it is empty, options.
inline QByteArray entryText(const QByteArray& name, const QByteArray& title, const QByteArray& option = {})
{
    QByteArray text = "\t<dict>\n\t\t<key>name</key>\n\t\t<string>" + name + "</string>\n";
    text += "\t\t<key>title</key>\n\t\t<string>" + title + "</string>\n";
    if (!option.isEmpty())
        text += "\t\t<key>option</key>\n\t\t<string>" + option + "</string>\n";
    return text + "\t</dict>\n";
}

inline bool writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

inline QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

inline constexpr GameRecord pong{{"game", "pong", "pong", "Pong", "ポン", "1972", "Atari", "good", ""}};
inline constexpr GameRecord bare{{"game", "bare", {}, "Bare", {}, {}, {}, {}, {}}};

} // namespace tessera::test
