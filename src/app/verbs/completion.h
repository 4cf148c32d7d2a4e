#pragma once

#include <QStringList>

namespace tessera {

/// What a shell offers for the last of the words that follow "tessera"; empty where files are meant, which
/// the shell knows better. Set names come from the catalogue that the windows show.
QStringList completions(const QStringList& words);

} // namespace tessera
