#include "app/ImageExport.h"

#include "tests/support/DialogDriver.h"
#include "tests/support/FileDialogs.h"
#include "tests/support/LargestFileSize.h"
#include "tests/support/OpenedWindow.h"
#include "tests/support/SmallDisk.h"
#include "viewer/OffscreenContexts.h"
#include "viewer/SoQtGeneralViewer.h"

#include <Inventor/C/glue/gl.h>
#include <Inventor/SoOffscreenRenderer.h>
#include <Inventor/nodes/SoCamera.h>
#include <Inventor/nodes/SoSeparator.h>
#include <QAbstractButton>
#include <QFile>
#include <QMessageBox>
#include <QOpenGLContext>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <clocale>
#include <gtest/gtest.h>

namespace {

constexpr int printer = 300;
constexpr int patchSize = 8;

// How far a print may be from the screen, as a share of how far a black picture is. A line is one
// pixel wide in both, so it is finer in print.
constexpr double filledTolerance = 0.3;
constexpr double lineTolerance = 0.65;
/** Surfaces alone differ at their edges only; light from another side shows. */
constexpr double lightTolerance = 0.1;

/** Mean difference of two pictures of one size in a channel's steps (0 to 255). */
double meanDifference(const QImage& one, const QImage& other) {
    double sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
                   std::abs(qBlue(a) - qBlue(b));
        }
    }
    return sum / (3.0 * one.width() * one.height());
}

/** A picture made coarser: what is left are its shapes and colours, not its single pixels. */
QImage coarse(const QImage& image) {
    return image.scaled(image.size() / patchSize, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/** The middle of a picture at a height in pixels, without the corner of the axis cross. */
QImage middle(const QImage& image, int height) {
    const QImage scaled = image.scaledToHeight(height, Qt::SmoothTransformation);
    const int width = height * 3 / 4;
    return scaled.copy((scaled.width() - width) / 2, 0, width, height)
        .convertToFormat(QImage::Format_RGB32);
}

/** Turns the camera around the point that it looks at. */
void lookFrom(SoCamera& camera, const SbRotation& orientation) {
    const auto ahead = [&] {
        SbVec3f direction;
        camera.orientation.getValue().multVec(SbVec3f(0, 0, -1), direction);
        return direction * camera.focalDistance.getValue();
    };
    const SbVec3f centre = camera.position.getValue() + ahead();
    camera.orientation = orientation;
    camera.position = centre - ahead();
}

class ImageExportTest : public testing::Test {
protected:
    /** Saves a view through the real dialog; returns what the program wrote to standard output. */
    std::string save(SoQtGeneralViewerFrame& frame, const QString& path) {
        QFile::remove(path);
        opened.activate(frame);
        testing::internal::CaptureStdout();
        DialogDriver()
            .then<QFileDialog>([&](QFileDialog& dialog) { FileDialogs::saveAs(dialog, path); })
            .during([&] { opened.action("saveImageAct").trigger(); });
        return testing::internal::GetCapturedStdout();
    }

    QByteArray saved() const {
        QFile file(path());
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }

    QString path() const { return folder.filePath("view.eps"); }

    /** The saved file as Ghostscript draws it. */
    QImage drawn() const {
        const QString picture = folder.filePath("drawn.png");
        EXPECT_EQ(
            QProcess::execute("gs", {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dEPSCrop",
                                     "-sDEVICE=png16m", "-r72", "-sOutputFile=" + picture, path()}),
            0);
        return QImage(picture);
    }

    SbVec2s expectedSize(const SoQtGeneralViewerFrame& frame) const {
        return ImageExport::printSize(
            frame.getViewer()->getViewportRegion().getViewportSizePixels(),
            SoOffscreenRenderer::getScreenPixelsPerInch(), printer);
    }

    void expectLikeTheScreen(SoQtGeneralViewerFrame& frame, const char* what,
                             double tolerance = filledTolerance) {
        RedrawSettled();
        const QImage screen = ViewDriver(frame).grab();
        EXPECT_EQ(save(frame, path()), "ok? 1\n");
        const QImage print = drawn();
        ASSERT_FALSE(print.isNull());
        const int height = screen.height();
        const QImage seen = coarse(middle(screen, height));
        const QImage printed = coarse(middle(print, height));
        ASSERT_EQ(seen.size(), printed.size());
        EXPECT_LT(meanDifference(seen, printed), tolerance * meanDifference(seen, blackLike(seen)))
            << what;
    }

    static QImage blackLike(const QImage& image) {
        QImage black(image.size(), QImage::Format_RGB32);
        black.fill(Qt::black);
        return black;
    }

    static void RedrawSettled() {
        for (int i = 0; i < 3; ++i) {
            QCoreApplication::processEvents();
        }
    }

    OpenedWindow opened{QSize(1200, 950)};
    QTemporaryDir folder;
};

} // namespace

TEST(PrintSize, IsWholeInchesAtThePrintersResolution) {
    EXPECT_EQ(ImageExport::printSize(SbVec2s(500, 400), 72, printer), SbVec2s(1800, 1500));
    EXPECT_EQ(ImageExport::printSize(SbVec2s(1000, 600), 72, printer), SbVec2s(3900, 2400));
    EXPECT_EQ(ImageExport::printSize(SbVec2s(71, 600), 72, printer), SbVec2s(0, 2400));
    EXPECT_EQ(ImageExport::printSize(SbVec2s(72, 143), 72, printer), SbVec2s(300, 300));
    EXPECT_EQ(ImageExport::printSize(SbVec2s(3840, 2160), 100, printer), SbVec2s(11400, 6300));
}

TEST_F(ImageExportTest, DialogAsksForAPostScriptFile) {
    DialogDriver()
        .then<QFileDialog>([](QFileDialog& dialog) {
            EXPECT_EQ(dialog.fileMode(), QFileDialog::AnyFile);
            EXPECT_EQ(dialog.nameFilters(), QStringList("PostScript (*.eps)"));
            EXPECT_EQ(dialog.viewMode(), QFileDialog::Detail);
            EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
            EXPECT_EQ(dialog.defaultSuffix(), "eps");
            dialog.reject();
        })
        .during([&] { opened.action("saveImageAct").trigger(); });
}

TEST_F(ImageExportTest, FileHasItsHeaderAndItsSize) {
    EXPECT_EQ(save(opened.hyperboloid(0), folder.filePath("view")), "ok? 1\n");
    const QByteArray file = saved();
    EXPECT_TRUE(file.startsWith("%!PS-Adobe"));
    const SbVec2s size = expectedSize(opened.hyperboloid(0));
    const auto box = QRegularExpression("%%BoundingBox: (\\d+) (\\d+) (\\d+) (\\d+)")
                         .match(QString::fromLatin1(file));
    ASSERT_TRUE(box.hasMatch());
    // The scene library places the picture on a page at the screen's resolution.
    const float points = 72 / SoOffscreenRenderer::getScreenPixelsPerInch();
    EXPECT_NEAR(box.captured(3).toInt() - box.captured(1).toInt(), size[0] * points, 1);
    EXPECT_NEAR(box.captured(4).toInt() - box.captured(2).toInt(), size[1] * points, 1);
    EXPECT_TRUE(file.contains("/image_wd " + QByteArray::number(size[0]) + " def"));
    EXPECT_TRUE(file.contains("/image_ht " + QByteArray::number(size[1]) + " def"));
    EXPECT_TRUE(file.contains("%%EOF"));
}

TEST_F(ImageExportTest, PictureIsTheOneOnTheScreenInEveryViewAndStyle) {
    const char* const names[] = {"U", "X", "M", "helix"};
    const std::vector<SoQtGeneralViewerFrame*> frames = opened.frames();
    for (std::size_t i = 0; i < frames.size(); ++i) {
        for (const std::string style : {"Phong", "solid", "lines"}) {
            expectLikeTheScreen(*frames[i], (names[i] + (" " + style)).c_str(),
                                style == "lines" ? lineTolerance : filledTolerance);
            frames[i]->toggleDrawStyle();
        }
    }
}

TEST_F(ImageExportTest, PictureFollowsTheTurnedCameraAndThePerspective) {
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    const ViewDriver driver(x);
    // The camera stays where the hand leaves it, instead of spinning on.
    x.getViewer()->setAnimationEnabled(FALSE);
    driver.drag(Qt::LeftButton, QPoint(150, 150), QPoint(240, 200));
    expectLikeTheScreen(x, "turned");
    driver.key(Qt::Key_P);
    expectLikeTheScreen(x, "perspective");
}

TEST_F(ImageExportTest, HeadlightTurnsWithTheCamera) {
    HyperboloidFrame& x = opened.hyperboloid(Hyperboloid::XSPACE);
    for (const float angle : {1.0F, 2.2F, 4.0F}) {
        lookFrom(*x.getViewer()->getCamera(), SbRotation(SbVec3f(0.3F, 1, 0.1F), angle));
        x.getViewer()->render();
        expectLikeTheScreen(x, "turned", lightTolerance);
    }
}

TEST_F(ImageExportTest, PictureShowsTransparencyAndBackground) {
    HyperboloidFrame& m = opened.hyperboloid(Hyperboloid::MSPACE);
    m.setTransparency(60, true);
    expectLikeTheScreen(m, "transparent");
    m.getViewer()->setBackgroundColor(SbColor(0.2F, 0.3F, 0.4F));
    m.getViewer()->setHeadlight(FALSE);
    expectLikeTheScreen(m, "background, no headlight");
}

TEST_F(ImageExportTest, NumbersHaveADecimalPointInEveryLocale) {
    save(opened.hyperboloid(0), path());
    const QByteArray expected = saved();
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);
    ASSERT_STREQ(std::localeconv()->decimal_point, ",");
    save(opened.hyperboloid(0), path());
    std::setlocale(LC_ALL, "C");
    const auto withoutDates = [](QByteArray file) {
        return QString::fromLatin1(file).remove(QRegularExpression("%%CreationDate[^\n]*\n"));
    };
    EXPECT_EQ(withoutDates(saved()), withoutDates(expected));
    EXPECT_TRUE(QRegularExpression("/image_dpi \\d+\\.\\d+ def").match(saved()).hasMatch());
}

TEST_F(ImageExportTest, ViewsAndCurrentContextAreLeftAlone) {
    HyperboloidFrame& u = opened.hyperboloid(0);
    RedrawSettled();
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
    RedrawSettled();
    EXPECT_EQ(ViewDriver(u).grab(), before);
    EXPECT_TRUE(opened.waitUntilAllViewsAreDrawn());
}

TEST_F(ImageExportTest, WithoutACurrentContextThereIsNoneAfterwards) {
    HyperboloidFrame& u = opened.hyperboloid(0);
    QOpenGLContext::currentContext()->doneCurrent();
    std::FILE* file = std::fopen(path().toLocal8Bit().constData(), "w");
    EXPECT_TRUE(opened.window().printToPostScript(u.getSceneRoot(), file, u.getViewer(), printer));
    std::fclose(file);
    EXPECT_EQ(QOpenGLContext::currentContext(), nullptr);
}

TEST_F(ImageExportTest, PictureOfLessThanAPixelFailsAndWritesNothing) {
    std::FILE* file = std::fopen(path().toLocal8Bit().constData(), "w");
    EXPECT_FALSE(opened.window().printToPostScript(opened.hyperboloid(0).getSceneRoot(), file,
                                                   opened.hyperboloid(0).getViewer(), 0));
    std::fclose(file);
    EXPECT_EQ(saved().size(), 0);
}

TEST_F(ImageExportTest, FullDiskIsAFailure) {
    std::FILE* file = std::fopen("/dev/full", "w");
    ASSERT_NE(file, nullptr);
    EXPECT_FALSE(opened.window().printToPostScript(opened.hyperboloid(0).getSceneRoot(), file,
                                                   opened.hyperboloid(0).getViewer(), printer));
    std::fclose(file);
}

TEST_F(ImageExportTest, HalfWrittenPictureIsRemoved) {
    const LargestFileSize limit(10000);
    EXPECT_EQ(save(opened.hyperboloid(0), path()), "ok? 0\n");
    EXPECT_FALSE(QFile::exists(path()));
}

TEST_F(ImageExportTest, WhatIsNoFileOfItsOwnStaysWhenTheExportFails) {
    ASSERT_TRUE(QFile::link("/dev/full", path()));
    opened.activate(opened.hyperboloid(0));
    testing::internal::CaptureStdout();
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) { FileDialogs::saveAs(dialog, path()); })
        .then<QMessageBox>([](QMessageBox& box) { box.button(QMessageBox::Yes)->click(); })
        .during([&] { opened.action("saveImageAct").trigger(); });
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "ok? 0\n");
    EXPECT_TRUE(QFileInfo(path()).isSymLink());
    EXPECT_TRUE(QFile::exists("/dev/full"));
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
    DialogDriver()
        .then<QFileDialog>([&](QFileDialog& dialog) {
            FileDialogs::saveAs(dialog, folder.filePath("missing/view.eps"));
        })
        .then<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ(box.icon(), QMessageBox::Warning);
            EXPECT_TRUE(box.text().contains("cannot be written"));
            box.accept();
        })
        .during([&] { opened.action("saveImageAct").trigger(); });
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST_F(ImageExportTest, CancelledDialogWritesNothing) {
    testing::internal::CaptureStdout();
    DialogDriver().then<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); }).during([&] {
        opened.action("saveImageAct").trigger();
    });
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
}

TEST(ImageExportWithoutDocuments, IsRefusedWithAWarning) {
    MainWindow window;
    DialogDriver()
        .then<QMessageBox>([](QMessageBox& box) {
            EXPECT_EQ(box.icon(), QMessageBox::Warning);
            box.accept();
        })
        .during([&] { window.findChild<QAction*>("saveImageAct")->trigger(); });
}
