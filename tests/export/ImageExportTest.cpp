#include "app/ImageExport.h"

#include "tests/export/PrintedViews.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/FileDialogs.h"
#include "tests/support/LargestFileSize.h"
#include "tests/support/MarkingTranslator.h"
#include "tests/support/SmallDisk.h"
#include "viewer/OffscreenContexts.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/C/glue/gl.h>
#include <Inventor/SoOffscreenRenderer.h>
#include <Inventor/actions/SoGetBoundingBoxAction.h>
#include <Inventor/elements/SoViewportRegionElement.h>
#include <Inventor/nodes/SoCallback.h>
#include <Inventor/nodes/SoSeparator.h>
#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QMessageBox>
#include <QOpenGLContext>
#include <QStatusBar>
#include <clocale>
#include <gtest/gtest.h>

namespace {

/** The lines of a file that a text occurs in. */
QList<QByteArray> linesWith(const QByteArray& file, const char* text) {
    QList<QByteArray> found;
    for (const QByteArray& line : file.split('\n')) {
        if (line.contains(text)) {
            found << line;
        }
    }
    return found;
}

class ImageExportTest : public PrintedViews {
protected:
    QString status() const { return opened.window().statusBar()->currentMessage(); }

    void createOlderFile() const {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(older);
    }

    /** Saves a view in the place of what is there; returns what was written to standard output. */
    std::string saveOver(SoQtGeneralViewerFrame& frame) {
        opened.activate(frame);
        return saveAgain();
    }

    /** The same with the view that the program chooses. */
    std::string saveAgain() {
        testing::internal::CaptureStdout();
        DialogDriver()
            .then<QFileDialog>([&](QFileDialog& dialog) { FileDialogs::saveAs(dialog, path()); })
            .then<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); })
            .during([&] { opened.action("saveImageAct").trigger(); });
        return testing::internal::GetCapturedStdout();
    }

    /** Fails to save a view in the place of an older file, which stays, and says so twice. */
    void expectFailure(SoQtGeneralViewerFrame& frame, const QString& reason) {
        createOlderFile();
        testing::internal::CaptureStderr();
        EXPECT_EQ(saveOver(frame), "ok? 0\n");
        const std::string said = testing::internal::GetCapturedStderr();
        EXPECT_EQ(status(), "Not saved: " + path() + " (" + reason + ")");
        EXPECT_EQ(said, status().toStdString() + "\n");
        EXPECT_EQ(saved(), older);
        EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList("view.eps"));
    }

    /** Prints a root as a frame's viewer would show it, without any dialog. */
    void print(SoNode& root, SoQtGeneralViewerFrame& frame, int dotsPerInch) const {
        std::FILE* file = std::fopen(path().toLocal8Bit().constData(), "w");
        EXPECT_TRUE(opened.window().printToPostScript(&root, file, frame.getViewer(), dotsPerInch));
        std::fclose(file);
    }

    const QByteArray older = "an older picture";
};

} // namespace

TEST(PrintSize, IsWholeInchesAtThePrintersResolution) {
    EXPECT_EQ(ImageExport::printSize(SbVec2s(500, 400), 72, printer), SbVec2s(1800, 1500));
    EXPECT_EQ(ImageExport::printSize(SbVec2s(1000, 600), 72, printer), SbVec2s(3900, 2400));
    EXPECT_EQ(ImageExport::printSize(SbVec2s(71, 600), 72, printer), SbVec2s(0, 2400));
    EXPECT_EQ(ImageExport::printSize(SbVec2s(72, 143), 72, printer), SbVec2s(300, 300));
    EXPECT_EQ(ImageExport::printSize(SbVec2s(3840, 2160), 100, printer), SbVec2s(11400, 6300));
    // In doubles, 500 pixels would be a little less than the seven inches that they are.
    EXPECT_EQ(ImageExport::printSize(SbVec2s(500, 701), 500.0F / 7, printer), SbVec2s(2100, 2700));
    // Of 33,300 dots a 16-bit number keeps the rest.
    EXPECT_EQ(ImageExport::printSize(SbVec2s(8000, 600), 72, printer), SbVec2s(-32236, 2400));
}

TEST_F(ImageExportTest, DialogAsksForAPostScriptFile) {
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) {
            EXPECT_EQ(dialog.fileMode(), QFileDialog::AnyFile);
            EXPECT_EQ(dialog.nameFilters(), QStringList("PostScript (*.eps)"));
            EXPECT_EQ(dialog.viewMode(), QFileDialog::Detail);
            EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
            EXPECT_EQ(dialog.defaultSuffix(), "eps");
            EXPECT_EQ(dialog.parent(), &opened.window());
            EXPECT_EQ(dialog.windowTitle(), "Save As") << "the toolkit's own";
            dialog.reject();
        })
        .during([&] { opened.action("saveImageAct").trigger(); });
}

TEST_F(ImageExportTest, KindOfFileIsTranslated) {
    const MarkingTranslator translator;
    DialogDriver()
        .then<QFileDialog>([](QFileDialog& dialog) {
            EXPECT_EQ(dialog.nameFilters(), QStringList("QMainWindow/PostScript (*.eps)"));
            dialog.reject();
        })
        .during([&] { opened.action("saveImageAct").trigger(); });
}

TEST_F(ImageExportTest, WhatHinderedItIsTranslated) {
    closeAfterwards();
    const MarkingTranslator translator;
    const QString missing = folder.filePath("missing/view.eps");
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) { FileDialogs::saveAs(dialog, missing); })
        .then<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(box.text(), "MainWindow/The file " + missing + " cannot be written.");
            box.accept();
        })
        .during([&] { opened.action("saveImageAct").trigger(); });
    HyperboloidFrame& u = opened.hyperboloid(0);
    u.getViewer()->setViewportRegion(SbViewportRegion(50, 400));
    EXPECT_EQ(save(u, path()), "ok? 0\n");
    EXPECT_EQ(status(),
              "MainWindow/Not saved: " + path() + " (MainWindow/the view cannot be rendered)");
}

TEST_F(ImageExportTest, FileHasItsHeaderAndItsSize) {
    closeAfterwards();
    HyperboloidFrame& u = opened.hyperboloid(0);
    resizeToWholeInches(u, 5, 3);
    EXPECT_EQ(save(u, folder.filePath("view")), "ok? 1\n");
    const QByteArray file = saved();
    EXPECT_TRUE(file.startsWith("%!PS-Adobe"));
    EXPECT_EQ(linesWith(file, "BoundingBox"), QList<QByteArray>{"%%BoundingBox: 0 0 360 216"});
    EXPECT_EQ(linesWith(file, "/image_dpi "), QList<QByteArray>{"/image_dpi 300.0 def"});
    EXPECT_EQ(linesWith(file, "/image_wd "), QList<QByteArray>{"/image_wd 1500 def"});
    EXPECT_EQ(linesWith(file, "/image_ht "), QList<QByteArray>{"/image_ht 900 def"});
    EXPECT_TRUE(file.contains("%%EOF"));
}

TEST_F(ImageExportTest, TheViewThatWasActiveLastIsPrintedWhenNoDocumentIsActive) {
    closeAfterwards();
    HyperboloidFrame& m = opened.hyperboloid(Hyperboloid::MSPACE);
    resizeToWholeInches(m, 4, 3);
    save(m, path());
    const QByteArray expected = saved();
    EXPECT_EQ(linesWith(expected, "BoundingBox"), QList<QByteArray>{"%%BoundingBox: 0 0 288 216"});
    opened.area().setActiveSubWindow(nullptr);
    ASSERT_EQ(opened.area().activeSubWindow(), nullptr);
    EXPECT_EQ(saveAgain(), "ok? 1\n");
    EXPECT_EQ(saved(), expected);
}

TEST_F(ImageExportTest, NumbersHaveADecimalPointInEveryLocale) {
    save(opened.hyperboloid(0), path());
    const QByteArray expected = saved();
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    save(opened.hyperboloid(0), path());
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(saved(), expected);
    EXPECT_EQ(linesWith(saved(), "/image_dpi "), QList<QByteArray>{"/image_dpi 300.0 def"});
}

TEST_F(ImageExportTest, ViewsAndCurrentContextAreLeftAlone) {
    HyperboloidFrame& u = opened.hyperboloid(0);
    u.getViewer()->render();
    settleRedraws();
    const QImage before = ViewDriver(u).grab();
    for (int i = 0; i < 5; ++i) {
        QOpenGLContext* current = QOpenGLContext::currentContext();
        ASSERT_NE(current, nullptr);
        const QSurface* surface = current->surface();
        std::FILE* file = std::fopen(path().toLocal8Bit().constData(), "w");
        EXPECT_TRUE(
            opened.window().printToPostScript(u.getSceneRoot(), file, u.getViewer(), printer));
        std::fclose(file);
        EXPECT_EQ(QOpenGLContext::currentContext(), current);
        EXPECT_EQ(current->surface(), surface);
    }
    u.getViewer()->render();
    settleRedraws();
    EXPECT_EQ(ViewDriver(u).grab(), before);
    EXPECT_TRUE(opened.waitUntilAllViewsAreDrawn());
}

TEST_F(ImageExportTest, WithoutACurrentContextThereIsNoneAfterwards) {
    HyperboloidFrame& u = opened.hyperboloid(0);
    u.getViewer()->render();
    QOpenGLContext::currentContext()->doneCurrent();
    std::FILE* file = std::fopen(path().toLocal8Bit().constData(), "w");
    EXPECT_TRUE(opened.window().printToPostScript(u.getSceneRoot(), file, u.getViewer(), printer));
    std::fclose(file);
    EXPECT_EQ(QOpenGLContext::currentContext(), nullptr);
}

TEST_F(ImageExportTest, PlanesEncloseTheSceneAsLargeAsItIsOnTheScreen) {
    HyperboloidFrame& u = opened.hyperboloid(0);
    std::vector<SbVec2s> measuredFor;
    auto* measure = new SoCallback;
    measure->setCallback(
        [](void* sizes, SoAction* action) {
            if (action->isOfType(SoGetBoundingBoxAction::getClassTypeId())) {
                static_cast<std::vector<SbVec2s>*>(sizes)->push_back(
                    SoViewportRegionElement::get(action->getState()).getViewportSizePixels());
            }
        },
        &measuredFor);
    u.getSceneRoot()->addChild(measure);
    settleRedraws();
    measuredFor.clear();
    u.getSceneRoot()->touch();
    std::FILE* file = std::fopen(path().toLocal8Bit().constData(), "w");
    EXPECT_TRUE(opened.window().printToPostScript(u.getSceneRoot(), file, u.getViewer(), printer));
    std::fclose(file);
    const SbVec2s onScreen = u.getViewer()->getViewportRegion().getViewportSizePixels();
    EXPECT_NE(onScreen[0], onScreen[1]);
    EXPECT_FALSE(measuredFor.empty());
    for (const SbVec2s& size : measuredFor) {
        EXPECT_EQ(size, onScreen);
    }
    u.getSceneRoot()->removeChild(measure);
}

TEST_F(ImageExportTest, PictureOfAnotherPrinterHasItsResolution) {
    closeAfterwards();
    constexpr int coarsePrinter = 150;
    HyperboloidFrame& u = opened.hyperboloid(0);
    resizeToWholeInches(u, 5, 3);
    print(*u.getSceneRoot(), u, coarsePrinter);
    const QByteArray file = saved();
    EXPECT_EQ(linesWith(file, "BoundingBox"), QList<QByteArray>{"%%BoundingBox: 0 0 360 216"});
    EXPECT_EQ(linesWith(file, "/image_dpi "), QList<QByteArray>{"/image_dpi 150.0 def"});
    EXPECT_EQ(linesWith(file, "/image_wd "), QList<QByteArray>{"/image_wd 750 def"});
    EXPECT_EQ(linesWith(file, "/image_ht "), QList<QByteArray>{"/image_ht 450 def"});
}

TEST_F(ImageExportTest, PrintsTheGivenRootAndNotTheScreens) {
    const NodePointer<SoSeparator> empty(new SoSeparator);
    HyperboloidFrame& u = opened.hyperboloid(0);
    u.getViewer()->setBackgroundColor(SbColor(0.2F, 0.4F, 0.6F));
    print(*empty, u, printer);
    u.getViewer()->setBackgroundColor(SbColor(0, 0, 0));
    QImage background = drawn();
    ASSERT_FALSE(background.isNull());
    const QImage print = background;
    background.fill(QColor(51, 102, 153));
    EXPECT_EQ(print, background);
}

TEST_F(ImageExportTest, PictureOfLessThanAPixelFailsAndWritesNothing) {
    std::FILE* file = std::fopen(path().toLocal8Bit().constData(), "w");
    EXPECT_FALSE(opened.window().printToPostScript(opened.hyperboloid(0).getSceneRoot(), file,
                                                   opened.hyperboloid(0).getViewer(), 0));
    std::fclose(file);
    EXPECT_EQ(saved().size(), 0);
}

TEST_F(ImageExportTest, FullDiskIsAFailure) {
    const auto print = [&](std::FILE* file, int dotsPerInch) {
        HyperboloidFrame& u = opened.hyperboloid(0);
        return opened.window().printToPostScript(u.getSceneRoot(), file, u.getViewer(),
                                                 dotsPerInch);
    };
    std::FILE* file = std::fopen("/dev/full", "w");
    ASSERT_NE(file, nullptr);
    EXPECT_FALSE(print(file, printer));
    std::fclose(file);

    constexpr int coarsePrinter = 10;
    constexpr std::size_t roomForAll = 1U << 24;
    file = std::fopen("/dev/full", "w");
    std::setvbuf(file, nullptr, _IOFBF, roomForAll);
    EXPECT_FALSE(print(file, coarsePrinter)) << "when all of it is still in the buffer";
    std::fclose(file);
}

TEST_F(ImageExportTest, HalfWrittenPictureIsRemoved) {
    const LargestFileSize limit(10000);
    EXPECT_EQ(save(opened.hyperboloid(0), path()), "ok? 0\n");
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(ImageExportTest, SavedPictureIsSaidInTheStatusBarAndTakesTheOldersPlace) {
    createOlderFile();
    EXPECT_EQ(saveOver(opened.hyperboloid(0)), "ok? 1\n");
    EXPECT_EQ(status(), "Saved " + path());
    EXPECT_TRUE(saved().startsWith("%!PS-Adobe"));
}

TEST_F(ImageExportTest, OlderPictureStaysWhenTheDiskIsFull) {
    const LargestFileSize limit(10000);
    expectFailure(opened.hyperboloid(0), "File too large");
}

TEST_F(ImageExportTest, OlderPictureStaysWhenTheViewCannotBeRendered) {
    closeAfterwards();
    HyperboloidFrame& u = opened.hyperboloid(0);
    u.getViewer()->setViewportRegion(SbViewportRegion(50, 400));
    expectFailure(u, "the view cannot be rendered");
}

TEST_F(ImageExportTest, FrameThatIsClosedWhileTheUserChoosesLeavesNoFile) {
    closeAfterwards();
    opened.activate(opened.firstHelix());
    testing::internal::CaptureStdout();
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) {
            delete &opened.subWindow(opened.firstHelix());
            FileDialogs::saveAs(dialog, path());
        })
        .during([&] { opened.action("saveImageAct").trigger(); });
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_FALSE(QFile::exists(path()));
    EXPECT_EQ(status(), "Not saved: " + path() + " (the view has been closed)");
}

TEST_F(ImageExportTest, PictureThatCannotTakeItsPlaceAfterAllIsNotCalledSaved) {
    closeAfterwards();
    HyperboloidFrame& u = opened.hyperboloid(0);
    // While the picture is drawn, a folder takes its name.
    QString place = path();
    auto* obstacle = new SoCallback;
    obstacle->setCallback(
        [](void* folderPath, SoAction*) { QDir().mkpath(*static_cast<QString*>(folderPath)); },
        &place);
    opened.activate(u);
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) {
            FileDialogs::saveAs(dialog, path());
            u.getSceneRoot()->addChild(obstacle);
        })
        .during([&] { opened.action("saveImageAct").trigger(); });
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "ok? 0\n");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), status().toStdString() + "\n");
    EXPECT_EQ(status(), "Not saved: " + path() + " (Is a directory)");
}

TEST_F(ImageExportTest, WhatIsNoFileOfItsOwnStaysWhenTheExportFails) {
    const QString device = fullDevice(folder.path());
    ASSERT_TRUE(QFile::link(device, path()));
    EXPECT_EQ(saveOver(opened.hyperboloid(0)), "ok? 0\n");
    EXPECT_EQ(status(), "Not saved: " + path() + " (No space left on device)");
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_TRUE(QFileInfo::exists(device));
    EXPECT_FALSE(QFileInfo(device).isFile());
}

TEST_F(ImageExportTest, ContextThatCannotBeMadeLeavesTheCurrentOne) {
    opened.hyperboloid(0).getViewer()->render();
    const QOpenGLContext* current = QOpenGLContext::currentContext();
    ASSERT_NE(current, nullptr);
    OffscreenContexts::install();
    // No framebuffer is as large as this.
    constexpr unsigned int tooLarge = 1U << 20;
    EXPECT_EQ(cc_glglue_context_create_offscreen(tooLarge, tooLarge), nullptr);
    EXPECT_EQ(QOpenGLContext::currentContext(), current);
}

TEST_F(ImageExportTest, FileThatCannotBeOpenedIsReportedAndNothingIsRendered) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) {
            FileDialogs::saveAs(dialog, folder.filePath("missing/view.eps"));
        })
        .then<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(box.parent(), &opened.window());
            EXPECT_EQ(box.icon(), QMessageBox::Warning);
            EXPECT_EQ(box.text(),
                      "The file " + folder.filePath("missing/view.eps") + " cannot be written.");
            box.accept();
        })
        .during([&] { opened.action("saveImageAct").trigger(); });
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    const std::string said = testing::internal::GetCapturedStderr();
    EXPECT_EQ(status(),
              "Not saved: " + folder.filePath("missing/view.eps") + " (No such file or directory)");
    EXPECT_EQ(said, status().toStdString() + "\n");
}

TEST_F(ImageExportTest, CancelledDialogWritesNothing) {
    testing::internal::CaptureStdout();
    opened.window().statusBar()->showMessage("Saved before");
    DialogDriver().then<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); }).during([&] {
        opened.action("saveImageAct").trigger();
    });
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(status(), "Saved before");
}

TEST(ImageExportWithoutDocuments, IsRefusedWithAWarning) {
    MainWindow window;
    DialogDriver()
        .then<QMessageBox>([&](QMessageBox& box) {
            EXPECT_EQ(box.icon(), QMessageBox::Warning);
            box.accept();
        })
        .during([&] { window.findChild<QAction*>("saveImageAct")->trigger(); });
}
