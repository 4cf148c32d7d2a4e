#pragma once

#include <QString>

namespace tessera {

/// The manual page of the command, made from the table of verbs, in the man macros.
QString manPage(const QString& version);

} // namespace tessera
