// What only the whole program shows: the order in which it starts.

#include "tests/program/OwnDisplay.h"
#include "tests/program/RunningViewer.h"
#include "tests/program/WindowHistory.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <gtest/gtest.h>

namespace {

/** The folders in which a program that talks of its plug-ins looked for a kind of them. */
QStringList foldersSearchedFor(const QString& kind, const QString& said) {
    QStringList found;
    const QRegularExpression line("checking directory path \"([^\"]*)/" + kind + "\"");
    QRegularExpressionMatchIterator all = line.globalMatch(said);
    while (all.hasNext()) {
        found << all.next().captured(1);
    }
    return found;
}

/** Whether any pixel is as white as the message on the splash; nothing in its picture is. */
bool hasWhite(const QImage& image) {
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if ((image.pixel(x, y) & RGB_MASK) == (qRgb(255, 255, 255) & RGB_MASK)) {
                return true;
            }
        }
    }
    return false;
}

} // namespace

TEST(ProgramStart, SplashIsOnTheScreenUntilTheWindowIs) {
    const OwnDisplay display;
    WindowHistory history(display.name());
    const RunningViewer viewer(display.name());
    ASSERT_TRUE(viewer.waitForWindow());
    constexpr std::size_t shownTwiceAndHiddenOnce = 3;
    ASSERT_TRUE(RunningViewer::waitUntil(
        [&] { return history.changes().size() >= shownTwiceAndHiddenOnce; }));
    const std::vector<WindowHistory::Change> changes = history.changes();
    ASSERT_EQ(changes.size(), shownTwiceAndHiddenOnce);
    EXPECT_TRUE(changes[0].shown);
    EXPECT_EQ(changes[0].place.size(), QSize(400, 343)) << "the size of the splash's picture";
    EXPECT_TRUE(changes[1].shown);
    EXPECT_EQ(changes[1].window, viewer.windowId().toULong());
    EXPECT_FALSE(changes[2].shown);
    EXPECT_EQ(changes[2].window, changes[0].window);
}

TEST(ProgramStart, SplashSaysInItsUpperRightThatTheProgramComputes) {
    const OwnDisplay display;
    WindowHistory history(display.name());
    const RunningViewer viewer(display.name());
    ASSERT_TRUE(RunningViewer::waitUntil([&] { return !history.changes().empty(); }));
    const QRect splash = history.changes().front().place;
    const QSize message(120, 25);
    const QPoint upperRight(splash.x() + splash.width() - message.width(), splash.y());
    // Looked at without a pause: before long the main window comes, which may be white there.
    bool said = false;
    while (!said && history.changes().size() == 1) {
        said = hasWhite(history.picture(QRect(upperRight, message)));
    }
    EXPECT_TRUE(said);
}

TEST(ProgramStart, CommandsAnswerTheKeyboardBeforeAnyClick) {
    const OwnDisplay display;
    RunningViewer viewer(display.name());
    ASSERT_TRUE(viewer.waitForWindow());
    ASSERT_TRUE(viewer.xdotool({"mousemove", "400", "400"}));
    viewer.key("ctrl+q");
    EXPECT_TRUE(viewer.waitForEnd());
}

TEST(ProgramStart, PlugInsOfPicturesAndOfOpenGLAreTakenFromBesideTheProgramOnly) {
    qputenv("QT_DEBUG_PLUGINS", "1");
    RunningViewer viewer(qEnvironmentVariable("DISPLAY"));
    qunsetenv("QT_DEBUG_PLUGINS");
    ASSERT_TRUE(viewer.waitForWindow());
    viewer.terminate();
    ASSERT_TRUE(viewer.waitForEnd());
    const QString said = viewer.errors();
    const QStringList beside(QFileInfo(TORVANE_PROGRAM).path() + "/../PlugIns");
    EXPECT_EQ(foldersSearchedFor("imageformats", said), beside);
    EXPECT_EQ(foldersSearchedFor("xcbglintegrations", said), beside);
}
