#pragma once

#include "tests/random/Move.h"

#include <vector>

class OpenedWindow;

/** What a user does with the documents and with the window around them. */
namespace DocumentMoves {

std::vector<Move> of(const OpenedWindow& opened);

} // namespace DocumentMoves
