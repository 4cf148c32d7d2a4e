#pragma once

#include <QByteArrayView>
#include <QString>
#include <QUrl>

#include <optional>

namespace tessera {

/// The length where a server does not tell it.
inline constexpr double unknownLength = -1;
/// In bytes; no picture of a game comes near.
inline constexpr qint64 largestPicture = qint64{64} << 20;

/// Whether a server's answer is a picture, by its status and the type of its content. The page that is sent
/// in place of a missing picture is none, whatever it looks like.
bool isPictureAnswer(QByteArrayView contentType);

/// The number of bytes that follow, or unknownLength.
double expectedLength(QByteArrayView contentLength);

/// How much of it has come, from 0 to 100. Nothing where the length is unknown.
std::optional<double> downloadPercent(double length, double expectedLength);

/// So many bytes tell what a content is.
inline constexpr qsizetype imageStart = 12;
/// Whether a content that begins like this is a picture, of a kind that the views can show.
bool startsLikeImage(QByteArrayView content);

/// The name of the file that a content is to be kept in: what the server suggests by its Content-Disposition,
/// or else the last component of the address. Whatever it held, it is one plain file name; nothing where it
/// held none.
std::optional<QString> pictureFileName(const QByteArray& contentDisposition, const QUrl& url);

} // namespace tessera
