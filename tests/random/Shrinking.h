#pragma once

#include <algorithm>
#include <cstddef>
#include <functional>
#include <vector>

/** Makes failing sequences short enough to be understood. */
namespace Shrinking {

/** The steps without `count` of them from `begin` on. */
template <typename Step>
std::vector<Step> without(const std::vector<Step>& steps, std::size_t begin, std::size_t count) {
    std::vector<Step> rest(steps.begin(), steps.begin() + static_cast<std::ptrdiff_t>(begin));
    const std::size_t end = std::min(begin + count, steps.size());
    rest.insert(rest.end(), steps.begin() + static_cast<std::ptrdiff_t>(end), steps.end());
    return rest;
}

/**
 * Leaves out steps as long as the rest still fails: first all but the last few, since what fails
 * has often begun shortly before; then large pieces, then smaller ones.
 *
 * @param steps    a sequence that fails
 * @param fails    whether a sequence fails
 * @param attempts how many sequences may be tried
 * @return a sequence that fails; given enough attempts, one that needs each of its steps
 */
template <typename Step>
std::vector<Step> shrink(std::vector<Step> steps,
                         const std::function<bool(const std::vector<Step>&)>& fails, int attempts) {
    for (std::size_t last = 1; last < steps.size() && attempts > 0; last *= 2) {
        const std::vector<Step> end = without(steps, 0, steps.size() - last);
        --attempts;
        if (fails(end)) {
            steps = end;
        }
    }
    std::size_t piece = std::max<std::size_t>(steps.size() / 2, 1);
    while (attempts > 0 && !steps.empty()) {
        bool shorter = false;
        std::size_t begin = 0;
        while (begin < steps.size() && attempts > 0) {
            const std::vector<Step> rest = without(steps, begin, piece);
            --attempts;
            if (fails(rest)) {
                steps = rest;
                shorter = true;
            } else {
                begin += piece;
            }
        }
        if (!shorter && piece == 1) {
            break;
        }
        piece = shorter ? piece : piece / 2;
        piece = std::clamp<std::size_t>(piece, 1, std::max<std::size_t>(steps.size(), 1));
    }
    return steps;
}

} // namespace Shrinking
