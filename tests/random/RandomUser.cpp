#include "tests/random/RandomUser.h"

#include "tests/random/DocumentMoves.h"
#include "tests/random/ViewMoves.h"

#include <ostream>

RandomUser::RandomUser(const OpenedWindow& opened)
    : dialogs(opened) {
    for (const auto& group : {ViewMoves::of(opened), DocumentMoves::of(opened), dialogs.all()}) {
        moves.insert(moves.end(), group.begin(), group.end());
    }
    for (const Move& move : moves) {
        totalWeight += move.weight;
    }
}

void RandomUser::play(std::uint32_t seed, std::ostream& log) {
    Dice dice(seed);
    const Move& move = choose(dice);
    // Flushed before it is made: a move that crashes can still be read.
    log << move.name << ": " << std::flush;
    log << move.make(dice) << std::endl;
}

const Move& RandomUser::choose(Dice& dice) const {
    int place = dice.below(totalWeight);
    auto move = moves.begin();
    while (place >= move->weight) {
        place -= move->weight;
        ++move;
    }
    return *move;
}
