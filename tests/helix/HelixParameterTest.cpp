#include "helix/HelixParameter.h"

#include "helix/Helix.h"

#include <gtest/gtest.h>
#include <set>

TEST(HelixParameters, StartWithTheValuesOfANewHelix) {
    const Helix helix;
    const std::array<double, HelixParameter::count> expected{0.01F, 0.05F, 5, 50, 16};
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(HelixParameter::all()[i].valueIn(helix), expected[i]);
    }
}

TEST(HelixParameters, EachSetsItsOwnValueAndNoOther) {
    for (const HelixParameter& changed : HelixParameter::all()) {
        Helix helix;
        const Helix before;
        changed.setIn(helix, 7);
        for (const HelixParameter& parameter : HelixParameter::all()) {
            const double expected = &parameter == &changed ? 7 : parameter.valueIn(before);
            EXPECT_EQ(parameter.valueIn(helix), expected)
                << changed.name << " changed " << parameter.name;
        }
    }
}

TEST(HelixParameters, RangesHoldTheStartValuesAndNamesAreTheirOwn) {
    std::set<std::string_view> names;
    for (const HelixParameter& parameter : HelixParameter::all()) {
        const double steps = parameter.valueIn(Helix()) * parameter.stepsPerUnit;
        EXPECT_GE(steps, parameter.minimum);
        EXPECT_LE(steps, parameter.maximum);
        EXPECT_FALSE(parameter.meaning.empty());
        names.insert(parameter.name);
    }
    EXPECT_EQ(names.size(), HelixParameter::count);
}
