#pragma once

/** The number of steps between `count` evenly spaced samples; at least 1, so that it can divide. */
constexpr unsigned int stepsBetween(unsigned int count) {
    return count < 2 ? 1 : count - 1;
}
