#pragma once

#include "catalogue/listxmlscanner.h"

#include <QFile>

#include <vector>

namespace tessera {

/// A saved list, parted where no element is open: behind end tags. Each part can be converted by itself.
struct ListxmlParts {
    ElementName name = ElementName::Undecided; ///< as the first start tag decides
    std::vector<qint64> ends; ///< bytes from the file's start, rising; the last is the file's size
};

/// About equal parts, at most `most`. One part where the file is small, or is a pipe, or has no end tag near
/// where it would be parted.
ListxmlParts partsOf(QFile& file, int most);

} // namespace tessera
