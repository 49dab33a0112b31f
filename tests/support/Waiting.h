#pragma once

#include <QTest>
#include <functional>

/** How long a test waits for something that should happen at once, in milliseconds. */
constexpr int patience = 20000;

/** Handles events until the condition holds; false when it does not within the patience. */
inline bool waitUntil(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, patience);
}
