#pragma once

#include "tests/support/OpenedWindow.h"

#include <gtest/gtest.h>
#include <memory>

/**
 * The main window that the cases of a suite share, since opening it takes longer than most of them.
 * A case that leaves it other than the next one expects it says so; then that one gets a new
 * window.
 */
class LastingWindow : public testing::Test {
public:
    static void TearDownTestSuite() { lasting.reset(); }

protected:
    explicit LastingWindow(QSize size)
        : opened(opening(size)) {}

    void TearDown() override {
        if (isLast || HasFailure()) {
            lasting.reset();
        }
    }

    /** No other case is to see what this one leaves. */
    void closeAfterwards() { isLast = true; }

    OpenedWindow& opened;

private:
    static OpenedWindow& opening(QSize size) {
        if (lasting == nullptr) {
            lasting = std::make_unique<OpenedWindow>(size);
        }
        return *lasting;
    }

    static inline std::unique_ptr<OpenedWindow> lasting;
    bool isLast = false;
};
