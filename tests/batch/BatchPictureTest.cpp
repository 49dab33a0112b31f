#include "tests/batch/BatchProgram.h"

#include <QDir>
#include <QImage>
#include <QTemporaryDir>
#include <QTransform>
#include <gtest/gtest.h>
#include <set>

namespace {

class BatchPictureTest : public testing::Test {
protected:
    /** Makes a small picture of a document without a display. */
    QImage picture(const QString& document, const QStringList& options = {}) const {
        const QString path = folder.filePath("picture.png");
        QFile::remove(path);
        const BatchProgram ended = BatchProgram::run(
            QStringList{"--dpi", "60", "--image", document + "=" + path} +
            (options.contains("--size") ? options : options + QStringList{"--size", "3x2"}));
        EXPECT_EQ(ended.exitCode, 0);
        EXPECT_EQ(ended.errors.toStdString(), "");
        return QImage(path).convertToFormat(QImage::Format_RGB32);
    }

    static std::size_t colorCount(const QImage& image) {
        std::set<QRgb> colors;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                colors.insert(image.pixel(x, y));
            }
        }
        return colors.size();
    }

    /** The smallest box around all that is not black. */
    static QRect coveredBox(const QImage& image) {
        QRect box;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                box = image.pixel(x, y) != qRgb(0, 0, 0) ? box.united({x, y, 1, 1}) : box;
            }
        }
        return box;
    }

    /** The share of pixels that are not black. */
    static double coveredShare(const QImage& image) {
        int covered = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                covered += image.pixel(x, y) != qRgb(0, 0, 0) ? 1 : 0;
            }
        }
        return static_cast<double>(covered) / (image.width() * image.height());
    }

    /** The share of pixels that are black in one picture only. */
    static double differingShare(const QImage& one, const QImage& other) {
        EXPECT_EQ(one.size(), other.size());
        const QRgb black = qRgb(0, 0, 0);
        int differing = 0;
        for (int y = 0; y < one.height(); ++y) {
            for (int x = 0; x < one.width(); ++x) {
                differing += (one.pixel(x, y) == black) != (other.pixel(x, y) == black) ? 1 : 0;
            }
        }
        return static_cast<double>(differing) / (one.width() * one.height());
    }

    /** Edges may fall on the one side of a pixel's middle or on the other. */
    static constexpr double tolerance = 0.02;

    QTemporaryDir folder;
};

} // namespace

TEST_F(BatchPictureTest, EveryDocumentIsDrawnWithoutADisplay) {
    for (const char* document : {"U", "X", "M", "helix"}) {
        const QImage image = picture(document);
        EXPECT_EQ(image.size(), QSize(180, 120));
        EXPECT_GT(colorCount(image), 50U) << document;
        EXPECT_EQ(image.pixel(0, 0), qRgb(0, 0, 0));
    }
}

TEST_F(BatchPictureTest, SizeNeedNotBeWholeInches) {
    EXPECT_EQ(picture("helix", {"--size", "2.51x1.5"}).size(), QSize(151, 90));
    const QByteArray postScript =
        BatchProgram::run({"--size", "2.51x1.5", "--dpi", "60", "--image", "helix=-"}).output;
    EXPECT_TRUE(postScript.contains("\n%%BoundingBox: 0 0 182 108\n"))
        << "181.2 points hold 151 dots";
    EXPECT_TRUE(postScript.contains("\n/image_wd 151 def\n"));
}

TEST_F(BatchPictureTest, ResolutionStandsInThePicture) {
    constexpr double inchesPerMetre = 1 / 0.0254;
    const QImage image = picture("U");
    EXPECT_EQ(image.dotsPerMeterX(), qRound(60 * inchesPerMetre));
    EXPECT_EQ(image.dotsPerMeterY(), qRound(60 * inchesPerMetre));
}

TEST_F(BatchPictureTest, PictureCanGoToStandardOutput) {
    const QStringList size{"--size", "2x1", "--dpi", "50"};
    EXPECT_TRUE(BatchProgram::run(size + QStringList{"--image", "X=-"})
                    .output.startsWith("%!PS-Adobe-2.0 EPSF-1.2"));
    const QImage image =
        QImage::fromData(BatchProgram::run(size + QStringList{"--image", "X=-.png"}).output);
    EXPECT_EQ(image.size(), QSize(100, 50));
}

TEST_F(BatchPictureTest, ZoomMakesLarger) {
    const double share = coveredShare(picture("X"));
    EXPECT_NEAR(coveredShare(picture("X", {"--zoom", "0.5"})) / share, 0.25, 0.05);
}

TEST_F(BatchPictureTest, OutlineFromBehindIsTheMirroredOne) {
    const QImage front = picture("M", {"--look", "plain"});
    const QImage behind = picture("M", {"--look", "plain", "--direction", "0,0,1"});
    EXPECT_LT(differingShare(front.mirrored(true, false), behind), tolerance);
    EXPECT_GT(differingShare(front, behind), tolerance);
}

TEST_F(BatchPictureTest, WhatIsUpTurnsThePicture) {
    const QStringList square{"--look", "plain", "--size", "2x2"};
    const QImage upright = picture("M", square);
    // What was on the right is above.
    const QImage turned = picture("M", square + QStringList{"--up", "1,0,0"});
    EXPECT_LT(differingShare(upright.transformed(QTransform().rotate(-90)), turned), tolerance);
    EXPECT_GT(differingShare(upright, turned), tolerance);
}

TEST_F(BatchPictureTest, LengthsOfDirectionsDoNotMatter) {
    EXPECT_EQ(picture("U", {"--direction", "-0.5,-0.25,-1", "--up", "0,3,0"}),
              picture("U", {"--direction", "-2,-1,-4", "--up", "0,1,0"}));
    EXPECT_EQ(picture("U", {"--direction", "0,0.75e30,-1.5e30", "--up", "0,3e38,0"}),
              picture("U", {"--direction", "0,0.5,-1"}));
}

TEST_F(BatchPictureTest, FittedViewSeesAllOfALargerScene) {
    const QStringList large{"--u3axis-range", "70", "--u3axis-radius", "3"};
    EXPECT_NE(picture("X", large), picture("X", large + QStringList("--fit")));
    const QImage fitted = picture("X", large + QStringList("--fit"));
    for (int x = 0; x < fitted.width(); ++x) {
        EXPECT_EQ(fitted.pixel(x, 0), qRgb(0, 0, 0));
    }
    const QRect covered = coveredBox(fitted);
    const QRect inner = fitted.rect().adjusted(1, 1, -1, -1);
    EXPECT_TRUE(inner.contains(covered)) << "all four edges are black";
    EXPECT_GT(covered.height(), 0.8 * fitted.height()) << "it is not smaller than it need be";
    EXPECT_GT(coveredShare(fitted), 0.01);
}

TEST_F(BatchPictureTest, NoFolderIsMadeForADriverWithoutAHome) {
    QProcessEnvironment environment = BatchProgram::bareEnvironment();
    environment.remove("XDG_CACHE_HOME");
    environment.insert("HOME", "");
    const BatchProgram ended = BatchProgram::run(
        {"--size", "1x1", "--dpi", "20", "--image", "U=u.png"}, folder.path(), environment);
    EXPECT_EQ(ended.errors.toStdString(), "");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
              QStringList("u.png"));
}

TEST_F(BatchPictureTest, LooksDiffer) {
    const QImage lit = picture("U");
    const QImage plain = picture("U", {"--look", "plain"});
    const QImage lines = picture("U", {"--look", "lines", "--screen-dpi", "200"});
    EXPECT_NE(lit, plain);
    EXPECT_LT(coveredShare(lines), coveredShare(plain));
}

TEST_F(BatchPictureTest, WithoutAnyOpenGlOneLineSaysWhatToInstallAndTextsAreMade) {
    const QProcessEnvironment environment = BatchProgram::environmentWithoutEgl();
    const BatchProgram ended =
        BatchProgram::run({"--image", "U=u.png", "--text", "U=u.txt", "--image", "X=x.png"},
                          folder.path(), environment);
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_EQ(ended.errors.toStdString(),
              "Not made: 2 pictures (there is no OpenGL, neither without a display (EGL, platform "
              "surfaceless: opening the platform fails with EGL error 0x300c) nor on one (DISPLAY "
              "names none); install libegl1 and libgl1-mesa-dri)\n");
    EXPECT_TRUE(QFile::exists(folder.filePath("u.txt")));
    EXPECT_FALSE(QFile::exists(folder.filePath("u.png")));
}

TEST_F(BatchPictureTest, PicturesOfASweepThatThereIsNoOpenGlForAreCounted) {
    const QProcessEnvironment environment = BatchProgram::environmentWithoutEgl();
    const BatchProgram ended =
        BatchProgram::run({"--grid", "9x9", "--sweep", "K1=1:2:3", "--image", "U={K1}.png"},
                          folder.path(), environment);
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_TRUE(ended.errors.startsWith("K1 = 2: K1 ≤ K2 does not hold: K1 = 2, K2 = 1.5\n"
                                        "Not made: 2 pictures (there is no OpenGL"))
        << ended.errors.constData();
    EXPECT_EQ(ended.errors.count('\n'), 2);
}

TEST_F(BatchPictureTest, DisplayThatCannotBeReachedIsToldByItsName) {
    QProcessEnvironment environment = BatchProgram::environmentWithoutEgl();
    environment.insert("DISPLAY", ":9876");
    const BatchProgram ended =
        BatchProgram::run({"--image", "U=u.png"}, folder.path(), environment);
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_EQ(ended.errors.toStdString(),
              "Not made: 1 picture (there is no OpenGL, neither without a display (EGL, platform "
              "surfaceless: opening the platform fails with EGL error 0x300c) nor on one (the "
              "display :9876 cannot be reached); install libegl1 and libgl1-mesa-dri)\n");
}

TEST_F(BatchPictureTest, DisplayWithoutOpenGlIsNotTaken) {
    QProcess server;
    server.start("Xvfb", {"-displayfd", "1", "-extension", "GLX"});
    ASSERT_TRUE(server.waitForReadyRead());
    const QString display = ":" + QString(server.readLine()).trimmed();
    QProcessEnvironment environment = BatchProgram::environmentWithoutEgl();
    environment.insert("DISPLAY", display);
    const BatchProgram ended =
        BatchProgram::run({"--image", "U=u.png"}, folder.path(), environment);
    server.terminate();
    server.waitForFinished();
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_TRUE(ended.errors.startsWith("Not made: 1 picture (there is no OpenGL"))
        << ended.errors.constData();
    EXPECT_TRUE(ended.errors.contains("the display " + display.toLocal8Bit() + " has no OpenGL"));
    EXPECT_EQ(ended.errors.count('\n'), 1);
}

TEST_F(BatchPictureTest, PngAndPostScriptHaveTheSamePixels) {
    for (const char* document : {"U", "helix"}) {
        const QImage png = picture(document, {"--look", "lines", "--size", "3x2"});
        ASSERT_EQ(BatchProgram::run({"--look", "lines", "--size", "3x2", "--dpi", "60", "--image",
                                     document + QString("=picture.eps")},
                                    folder.path())
                      .exitCode,
                  0);
        const QString drawn = folder.filePath("drawn.png");
        ASSERT_EQ(QProcess::execute("gs", {"-q", "-dSAFER", "-dBATCH", "-dNOPAUSE", "-dEPSCrop",
                                           "-sDEVICE=png16m", "-r60", "-sOutputFile=" + drawn,
                                           folder.filePath("picture.eps")}),
                  0);
        EXPECT_GT(colorCount(png), 10U);
        EXPECT_TRUE(QImage(drawn).convertToFormat(QImage::Format_RGB32) == png) << document;
    }
}

TEST_F(BatchPictureTest, PictureThatThereIsNoMemoryForIsToldAndTheRestIsMade) {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer takes more memory than any limit leaves";
#endif
    // The pixels alone take 2 gigabytes.
    const BatchProgram ended = BatchProgram::runInMemory(
        1500000, {"--size", "86x86", "--dpi", "300", "--image", "X=x.png", "--text", "U=u.txt"},
        folder.path());
    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_EQ(ended.errors.toStdString(), "Not made: x.png (there is no memory)\n");
    EXPECT_TRUE(QFile::exists(folder.filePath("u.txt")));
}
