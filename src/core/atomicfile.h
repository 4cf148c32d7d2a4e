#pragma once

#include "core/failure.h"

#include <expected>
#include <functional>
#include <span>
#include <string_view>

namespace tessera {

/// Writes the pieces, one after another, as the whole content of the file at `path`.
/// The file is replaced in one step once every byte is on disk; until then the old one stands.
/// The failure's key is "failure_write": the path and the system's reason.
std::expected<void, Failure> writeAtomically(const QString& path, std::span<const std::string_view> pieces);

/// Takes the next piece of a content; false where it could not be written, and no more is wanted.
using ContentSink = std::function<bool(std::string_view)>;

/// The same with a content that is made while it is written.
std::expected<void, Failure> writeAtomically(const QString& path,
                                             const std::function<void(const ContentSink&)>& content);

} // namespace tessera
