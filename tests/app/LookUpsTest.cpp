// The main window's look-ups of documents, which are there for classes to come: nothing calls them.

#include "tests/support/OpenedWindow.h"

#include <gtest/gtest.h>

namespace {

// A member that is named in an explicit instantiation may be private: so the look-ups are reached.

template <typename Operation, typename Operation::Pointer member>
struct Reached {
    friend typename Operation::Pointer pointerTo(Operation /*operation*/) { return member; }
};

struct FindMdiChild {
    using Pointer = QMdiSubWindow* (MainWindow::*)(const QString&);
    friend Pointer pointerTo(FindMdiChild);
};
template struct Reached<FindMdiChild, &MainWindow::findMdiChild>;

struct ActiveMdiChild {
    using Pointer = SoQtGeneralViewerFrame* (MainWindow::*)();
    friend Pointer pointerTo(ActiveMdiChild);
};
template struct Reached<ActiveMdiChild, &MainWindow::activeMdiChild>;

class LookUps : public testing::Test {
protected:
    QMdiSubWindow* found(const QString& title) const {
        return (opened.window().*pointerTo(FindMdiChild()))(title);
    }
    SoQtGeneralViewerFrame* active() const {
        return (opened.window().*pointerTo(ActiveMdiChild()))();
    }

    OpenedWindow opened;
};

} // namespace

TEST_F(LookUps, FindTheOldestDocumentThatBearsATitle) {
    const std::vector<SoQtGeneralViewerFrame*> frames = opened.frames();
    for (const SoQtGeneralViewerFrame* frame : frames) {
        EXPECT_EQ(found(frame->windowTitle()), &opened.subWindow(*frame));
    }
    frames[3]->setWindowTitle("shared");
    frames[1]->setWindowTitle("shared");
    EXPECT_EQ(found("shared"), &opened.subWindow(*frames[1]));
    EXPECT_EQ(found("Shared"), nullptr);
    EXPECT_EQ(found("In U Space"), nullptr) << "the title of a view is not its document's";
}

TEST_F(LookUps, TellTheActiveDocumentIfThereIsOne) {
    for (SoQtGeneralViewerFrame* frame : opened.frames()) {
        opened.activate(*frame);
        EXPECT_EQ(active(), frame);
    }
    opened.area().setActiveSubWindow(nullptr);
    EXPECT_EQ(active(), nullptr);
}
