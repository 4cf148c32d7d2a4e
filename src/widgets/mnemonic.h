#pragma once

#include <QString>

namespace tessera {

/// A label as it is heard: without the mark of its key, in "&Year" and in "年(&Y)" alike.
QString withoutMnemonic(QString label);

} // namespace tessera
