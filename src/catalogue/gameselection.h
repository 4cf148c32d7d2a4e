#pragma once

#include <QString>

namespace tessera {

/// A game that is selected; each text is empty where none is.
struct SelectedGame {
    QString name; ///< the set's
    QString title;
    QString titlejp;
    QString parent{}; ///< the parent set's name

    bool operator==(const SelectedGame&) const = default;
};

/// Where a game is selected: a list, of several the first, or a field for its name.
class GameSelection
{
public:
    virtual ~GameSelection() = default;
    virtual SelectedGame selected() const = 0;
};

} // namespace tessera
