// The numbers of frames and helices count from the start of the process: this check has a process
// of its own, in which nothing was counted before.

#include "tests/support/OpenedWindow.h"

#include <gtest/gtest.h>

TEST(FirstNamesTest, FramesCountFromZeroAndHelicesFromOne) {
    EXPECT_EQ(SoQtGeneralViewerFrame::instances, 0);
    EXPECT_EQ(HelixFrame::helix_nb, 0);
    const OpenedWindow opened;
    const std::vector<SoQtGeneralViewerFrame*> frames = opened.frames();
    ASSERT_EQ(frames.size(), 4U);
    // The window itself has taken two frames before its documents.
    int number = 2;
    for (const SoQtGeneralViewerFrame* frame : frames) {
        EXPECT_EQ(frame->getId(), number);
        EXPECT_EQ(frame->windowTitle(), QString("Viewer %1").arg(number));
        ++number;
    }
    EXPECT_EQ(opened.firstHelix().getName(), SbName("Helix_1"));
}
