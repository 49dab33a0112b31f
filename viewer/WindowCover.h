#pragma once

#include <QAbstractNativeEventFilter>
#include <QtGui/qwindowdefs.h>

/**
 * Tells whether a window on the screen is covered wholly: by windows of other programs or of this
 * one, by the edge of the screen or of the window around it. When a part of it comes to light, it
 * counts as uncovered before the toolkit paints it.
 *
 * The X server knows, and tells of every change. Under a window manager that composes the screen
 * itself it does not count what lies over a program's windows; there, without GLX, and on other
 * window systems, nothing is known to be covered.
 */
class WindowCover : public QAbstractNativeEventFilter {
public:
    WindowCover();
    ~WindowCover() override = default;
    WindowCover(const WindowCover&) = delete;
    WindowCover& operator=(const WindowCover&) = delete;

    /** Watches a window in the place of the one before; OpenGL has just drawn into it. */
    void watch(WId window);

    /** Whether the window is watched and covered wholly. */
    bool covers(WId window) const { return covered && window == watched; }

    bool nativeEventFilter(const QByteArray& eventType, void* message, long* result) override;

private:
    WId watched = 0;
    bool covered = false;
};
