#pragma once

#include "catalogue/gameselection.h"

#include <utility>

namespace tessera::test {

/// A selection that a test sets.
struct ChosenGame : GameSelection {
    explicit ChosenGame(SelectedGame first = {})
        : game(std::move(first))
    {
    }

    SelectedGame game;

    SelectedGame selected() const override { return game; }
};

} // namespace tessera::test
