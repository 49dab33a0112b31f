#pragma once

#include "tests/random/Move.h"

#include <vector>

class OpenedWindow;

/** What a user does inside the views: pick, drag the camera, press keys, turn the wheel. */
namespace ViewMoves {

std::vector<Move> of(const OpenedWindow& opened);

} // namespace ViewMoves
