#include <Inventor/SoDB.h>

#include <gtest/gtest.h>

namespace {

/** Initialises the scene library once, before any test makes a node; it needs no display. */
class CoinEnvironment : public testing::Environment {
public:
    void SetUp() override { SoDB::init(); }
    /** Frees what the library keeps for itself, so that a leak found at the end is one of ours. */
    void TearDown() override { SoDB::finish(); }
};

[[maybe_unused]] const testing::Environment* const coinEnvironment =
    testing::AddGlobalTestEnvironment(new CoinEnvironment);

} // namespace
