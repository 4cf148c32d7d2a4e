#pragma once

#include "core/failure.h"

#include <QImage>

#include <expected>

namespace tessera {

/// What is larger is not read: a few bytes of a file can claim any size. The image library's own limit, in
/// pixels of four bytes.
inline constexpr qint64 mostPixels = qint64{32} << 20;

/// A picture as it is drawn; its content tells which of the usual formats it has. It may take its time.
std::expected<QImage, Failure> readPicture(const QString& path);

} // namespace tessera
