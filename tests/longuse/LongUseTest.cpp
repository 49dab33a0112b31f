#include "tests/longuse/ServerResources.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/FileDialogs.h"
#include "tests/support/OpenedWindow.h"
#include "tests/support/RedrawCounter.h"
#include "tests/support/ResidentMemory.h"
#include "viewer/SoQtGeneralViewer.h"

#include <QPixmapCache>
#include <QTemporaryDir>
#include <algorithm>
#include <gtest/gtest.h>
#include <iostream>
#include <malloc.h>

namespace {

/** What the second half of a long use may add, in bytes: the heap's own unrest. */
#ifdef __SANITIZE_ADDRESS__
/** The sanitizer keeps so much of what was freed, to find its later use. */
constexpr long unrest = 300000000;
#else
constexpr long unrest = 6000000;
#endif

long lastingBytes() {
    // What is free already must not count, nor a cache that has not reached its limit yet: the
    // pictures on a viewer's buttons stay in the toolkit's one, which holds ten megabytes at most.
    QPixmapCache::clear();
    malloc_trim(0);
    return residentBytes();
}

/** What may not grow with the time that the program is used. */
struct Holding {
    long memory = lastingBytes();
    std::map<std::string, unsigned int> resources = countServerResources();
};

void finish() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    RedrawCounter::settle();
}

/** The share of the whole use that is made, in percent: all of it takes minutes. */
int sharePercent() {
    constexpr int quickShare = 10;
    bool set = false;
    const int share = qEnvironmentVariableIntValue("TORVANE_LONG_USE_PERCENT", &set);
    return set ? share : quickShare;
}

/**
 * Does something so many times and expects that the second half leaves nothing behind; the first
 * half fills what is kept once: caches, fonts, the heap's free pieces.
 */
void useLong(const char* what, int wholeTimes, const std::function<void(int)>& action) {
    const int times = std::max(wholeTimes * sharePercent() / 100, 10);
    const auto half = [&](int from, int to) {
        for (int i = from; i < to; ++i) {
            action(i);
        }
        finish();
        return Holding();
    };
    const Holding before = half(0, times / 10);
    const Holding middle = half(times / 10, times / 2);
    const Holding after = half(times / 2, times);
    std::cout << times << " " << what << ": " << before.memory / 1000000 << " MB after a tenth, "
              << middle.memory / 1000000 << " MB after half, " << after.memory / 1000000
              << " MB at the end" << std::endl;
    EXPECT_LT(after.memory, middle.memory + unrest) << what;
    EXPECT_EQ(after.resources, middle.resources) << what;
    EXPECT_GT(after.resources.at("WINDOW"), 0U);
}

} // namespace

class LongUse : public testing::Test {
protected:
    OpenedWindow opened;
};

TEST_F(LongUse, HelicesOpenedAndClosedLeaveNothing) {
    useLong("helices", 500, [&](int) {
        opened.action("newAct").trigger();
        finish();
        opened.closeFrame(*opened.helices().back());
    });
    EXPECT_EQ(opened.window().getHelixCount(), 1);
}

TEST_F(LongUse, ParameterChangesLeaveNothing) {
    for (int i = 0; i < 4; ++i) {
        opened.action("newAct").trigger();
    }
    useLong("parameter changes", 1000, [&](int i) {
        const auto oldCount =
            static_cast<int>(opened.hyperboloid(Hyperboloid::USPACE).getNumVertices());
        const int precision = i % 2 == 0 ? 64 : 100;
        opened.window().refresh_hyperboloids(1, 1.5, 1, 0.5, 0.5, 1, i % 7, 0, precision, precision,
                                             0.3, 7, 7, 0.02, 0.03);
        opened.window().refresh_helixs(oldCount);
        finish();
    });
}

TEST_F(LongUse, KeyStepsLeaveNothing) {
    opened.tie(opened.firstHelix(), opened.hyperboloid(Hyperboloid::XSPACE));
    const ViewDriver view(opened.hyperboloid(Hyperboloid::XSPACE));
    useLong("key steps", 10000, [&](int i) {
        view.key(i % 100 < 50 ? Qt::Key_Down : Qt::Key_Left);
        if (i % 10 == 0) {
            finish();
        }
    });
}

TEST_F(LongUse, ImageExportsLeaveNothing) {
    const QTemporaryDir folder;
    const QString path = folder.filePath("view.eps");
    opened.activate(opened.hyperboloid(Hyperboloid::XSPACE));
    const auto exportOnce = [&] {
        testing::internal::CaptureStdout();
        QFile::remove(path);
        DialogDriver()
            .then<QFileDialog>([&](QFileDialog& dialog) { FileDialogs::saveAs(dialog, path); })
            .during([&] { opened.action("saveImageAct").trigger(); });
        EXPECT_EQ(testing::internal::GetCapturedStdout(), "ok? 1\n");
    };
    useLong("image exports", 100, [&](int) { exportOnce(); });
}
