#pragma once

#include "core/failure.h"

#include <QString>

#include <expected>

namespace tessera {

/// The extra emulator options of the first favourite with that set name in the file at `path`; empty where
/// there is none, or no file.
std::expected<QString, Failure> priorityOption(const QString& path, const QString& name);

} // namespace tessera
