#pragma once

#include "catalogue/gamerecord.h"

#include <QStringList>

#include <span>
#include <string>
#include <vector>

namespace tessera {

/// The makers that records have, each once, the commonest first.
class MakerNames
{
public:
    explicit MakerNames(std::span<const GameRecord> records);

    /// Those with a word that begins like this, whatever its case, width and accents; at most so many. Every
    /// maker has a word that begins with nothing.
    QStringList beginningWith(const QString& begun, qsizetype most) const;

private:
    struct Maker {
        QString name;
        std::string folded;
    };

    std::vector<Maker> m_makers;
};

} // namespace tessera
