#include "tests/support/DialogDriver.h"
#include "tests/support/FileContent.h"
#include "tests/support/FileDialogs.h"
#include "tests/support/KeptPictures.h"
#include "tests/support/OpenedWindow.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

/** The main window, and what its views show with kept pictures and without. */
class KeptViews : public testing::Test {
protected:
    KeptViews() {
        constexpr int oldCount = 64 * 64;
        opened.window().refresh_hyperboloids(1.03, 1.71, 0.94, 0.31, 0.67, 0.83, 0.21, -0.37, 37,
                                             53, 0.29, 7, 9, 0.021, 0.033);
        opened.window().refresh_helixs(oldCount);
        opened.tie(opened.firstHelix(), x);
    }

    /** Steps with the keys, and expects every view to show what a frame drawn wholly shows. */
    void step() {
        for (const Qt::Key key : {Qt::Key_Left, Qt::Key_Down, Qt::Key_Left, Qt::Key_Up}) {
            ViewDriver(x).key(key);
            expectSamePictures();
        }
    }

    void expectSamePictures() {
        for (SoQtGeneralViewerFrame* frame : opened.frames()) {
            RedrawCounter::settle();
            const QImage shown = ViewDriver(*frame).grab();
            EXPECT_EQ(shown, KeptPictures::drawnWholly(*frame))
                << frame->windowTitle().toStdString();
        }
    }

    void saveImage(const QString& path) {
        DialogDriver()
            .then<QFileDialog>([&](QFileDialog& dialog) { FileDialogs::saveAs(dialog, path); })
            .during([&] { opened.action("saveImageAct").trigger(); });
    }

    const OpenedWindow opened{QSize(700, 600)};
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
};

} // namespace

TEST_F(KeptViews, ShowTheSameBetweenExports) {
    const QTemporaryDir folder;
    step();
    for (const char* name : {"first.eps", "second.eps", "third.eps"}) {
        saveImage(folder.filePath(name));
        EXPECT_TRUE(contentOf(folder.filePath(name)).startsWith("%!PS"));
        step();
    }
}

TEST_F(KeptViews, ShowTheSameAfterMinimiseAndRestore) {
    step();
    opened.window().showMinimized();
    EXPECT_TRUE(waitUntil([&] { return opened.window().isMinimized(); }));
    x.moveSphere(HyperboloidFrame::DOWN);
    opened.window().showNormal();
    EXPECT_TRUE(opened.waitUntilAllViewsAreDrawn());
    step();
    QMdiSubWindow& document = opened.subWindow(x);
    document.showMinimized();
    opened.hyperboloid(Hyperboloid::USPACE).moveSphere(HyperboloidFrame::LEFT);
    document.showNormal();
    EXPECT_TRUE(opened.waitUntilAllViewsAreDrawn());
    step();
}

TEST_F(KeptViews, ShowTheSameWithAnyDocumentsAround) {
    step();
    for (int helix = 0; helix < 2; ++helix) {
        opened.action("newAct").trigger();
        EXPECT_TRUE(opened.waitUntilAllViewsAreDrawn());
        opened.tie(*opened.helices().back(), x);
        step();
    }
    opened.closeFrame(opened.firstHelix());
    opened.tie(opened.firstHelix(), x);
    step();
    opened.action("cascadeAct").trigger();
    opened.activate(x);
    EXPECT_TRUE(waitUntil([&] { return ViewDriver(x).isDrawn(); }));
    step();
    opened.action("tileAct").trigger();
    EXPECT_TRUE(waitUntil([&] { return ViewDriver(x).isDrawn(); }));
    step();
}
