#include "export/PictureRenderer.h"

#include <Inventor/SbViewportRegion.h>
#include <gtest/gtest.h>

TEST(PictureRenderer, DrawsIntoARegionOfItsSizeAndResolution) {
    const PictureRenderer renderer({SbVec2s(1500, 900), 270}, {});
    EXPECT_EQ(renderer.region().getWindowSize(), SbVec2s(1500, 900));
    EXPECT_EQ(renderer.region().getViewportSizePixels(), SbVec2s(1500, 900));
    EXPECT_EQ(renderer.region().getPixelsPerInch(), 270.0F);
}
