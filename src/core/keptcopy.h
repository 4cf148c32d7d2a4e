#pragma once

#include "core/failure.h"

#include <QDateTime>

#include <expected>

namespace tessera {

/// "Tessera 2026-01-02 03-04-05.xml" beside "Tessera.xml".
QString datedName(const QString& path, const QDateTime& when);

/// The name itself, or the same with a number where it is taken.
QString freeName(const QString& name);

/// Gives the file at `path` a second name, which it keeps when it is replaced; a number is added where the
/// name is taken. Nothing moves, so there is a whole file at `path` at every moment. Gives the name taken,
/// which is empty where there was no file.
std::expected<QString, Failure> keepAs(const QString& path, const QString& name);

} // namespace tessera
