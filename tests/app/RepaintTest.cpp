#include "tests/support/OpenedWindow.h"
#include "tests/support/RedrawCounter.h"
#include "tests/support/WindowMessages.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

QImage screenshot(const QWidget& window) {
    return QGuiApplication::primaryScreen()->grabWindow(window.winId()).toImage();
}

/** Has the window system place documents, and waits until they are there. */
void placeFromOutside(const QList<QMdiSubWindow*>& documents, const std::vector<QRect>& places) {
    const std::string display = qgetenv("DISPLAY").toStdString();
    for (std::size_t i = 0; i < places.size(); ++i) {
        const QRect& place = places[i];
        ASSERT_TRUE(placeWindow(display, documents[static_cast<int>(i)]->winId(), place.x(),
                                place.y(), place.width(), place.height()));
    }
    EXPECT_TRUE(waitUntil([&] {
        return std::equal(places.begin(), places.end(), documents.begin(),
                          [](const QRect& place, const QMdiSubWindow* document) {
                              return document->geometry() == place;
                          });
    }));
    RedrawCounter::settle();
}

} // namespace

TEST(Repaint, NothingStaysOfALayoutThatTheWindowSystemTookBack) {
    const OpenedWindow opened(QSize(1200, 900));
    RedrawCounter::settle();
    const QImage before = screenshot(opened.window());
    // The hyperboloids; the helix lies over their second place, where they are hardly painted.
    const QList<QMdiSubWindow*> documents = opened.area().subWindowList().mid(0, 3);
    std::vector<QRect> places;
    for (const QMdiSubWindow* document : documents) {
        places.push_back(document->geometry());
    }
    placeFromOutside(documents, std::vector<QRect>(places.size(), QRect(0, 0, 408, 329)));
    EXPECT_NE(screenshot(opened.window()), before);
    placeFromOutside(documents, places);
    EXPECT_TRUE(waitUntil([&] { return screenshot(opened.window()) == before; }));
}
