#pragma once

#include "tests/random/Dice.h"

#include <functional>
#include <string>

/** One thing that a random user can do. */
struct Move {
    std::string name;
    /** How often it is done, compared with the other moves. */
    int weight;
    /** Does it, with the dice for every decision on the way, and says what was done. */
    std::function<std::string(Dice&)> make;
};
