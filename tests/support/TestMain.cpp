// The main function of every test program that opens windows.

#include "tests/support/TestApplication.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    const TestApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
