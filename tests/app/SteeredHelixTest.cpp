#include "tests/support/OpenedWindow.h"

#include <QLabel>
#include <gtest/gtest.h>

/** Each space's frame, with the first helix tied to it. */
class SteeredHelixIn : public testing::TestWithParam<int> {};

TEST_P(SteeredHelixIn, PickIsShownInTheStatusBar) {
    const OpenedWindow opened;
    HyperboloidFrame& frame = opened.hyperboloid(GetParam());
    const HelixFrame& helix = opened.firstHelix();
    opened.tie(helix, frame);
    const ViewDriver driver(frame);
    const int height = driver.widget().height();
    for (int y = height / 3; helix.getIndex() == 0 && y < height; y += 7) {
        driver.click(Qt::RightButton, QPoint(driver.widget().width() / 2, y));
    }
    ASSERT_NE(helix.getIndex(), 0) << "the surface is nowhere in front";
    EXPECT_TRUE(opened.label("steeredHelixLabel").contains(helix.viewerTitle()));
}

INSTANTIATE_TEST_SUITE_P(EverySpace, SteeredHelixIn, testing::Values(0, 1, 2));
