#include "tests/support/OpenedWindow.h"
#include "tests/support/RedrawCounter.h"
#include "tests/support/WindowMessages.h"

#include <QGuiApplication>
#include <QPaintEvent>
#include <QScreen>
#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

namespace {

QImage screenshot(const QWidget& window) {
    return QGuiApplication::primaryScreen()->grabWindow(window.winId()).toImage();
}

/** Remembers what of a widget has been painted. */
class PaintRecord : public QObject {
public:
    explicit PaintRecord(QWidget& widget)
        : QObject(&widget) {
        widget.installEventFilter(this);
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            painted += static_cast<QPaintEvent*>(event)->region();
        }
        return false;
    }

    bool isEmpty() const { return painted.isEmpty(); }
    /** What has been painted since the last call. */
    QRegion take() { return std::exchange(painted, QRegion()); }

private:
    QRegion painted;
};

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

TEST(Repaint, DocumentIsPaintedWhollyWhereTheWindowSystemHasOnlyMovedOrOnlyResizedIt) {
    const OpenedWindow opened(QSize(1200, 900));
    QMdiSubWindow& document = opened.subWindow(opened.hyperboloid(Hyperboloid::USPACE));
    opened.activate(opened.hyperboloid(Hyperboloid::USPACE));
    RedrawCounter::settle();
    PaintRecord record(document);
    const QRect before = document.geometry();
    const QRect moved = before.translated(-31, -17);
    for (const QRect& place : {moved, QRect(moved.topLeft(), before.size() - QSize(43, 29))}) {
        record.take();
        placeFromOutside({&document}, {place});
        const QRegion painted = record.take();
        document.update();
        EXPECT_TRUE(waitUntil([&] { return !record.isEmpty(); }));
        EXPECT_EQ(painted, record.take());
    }
}

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
