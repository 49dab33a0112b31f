#pragma once

#include "tests/random/DialogMoves.h"

#include <cstdint>
#include <iosfwd>
#include <vector>

class OpenedWindow;

/** A user who does anything in any order. Every move follows from a seed of its own. */
class RandomUser {
public:
    explicit RandomUser(const OpenedWindow& opened);

    /** Chooses a move and makes it, telling first which kind it is and then what was done. */
    void play(std::uint32_t seed, std::ostream& log);

private:
    const Move& choose(Dice& dice) const;

    DialogMoves dialogs;
    std::vector<Move> moves;
    int totalWeight = 0;
};
