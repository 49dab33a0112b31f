#include "viewer/WindowCover.h"

#include <QCoreApplication>
// The window system's macros are in nobody's way behind the toolkit's headers.
#include <GL/glx.h>
#include <xcb/xcb.h>

WindowCover::WindowCover() {
    QCoreApplication::instance()->installNativeEventFilter(this);
}

void WindowCover::watch(WId window) {
    // The toolkit does not give its connection away, but OpenGL draws over it.
    Display* display = glXGetCurrentDisplay();
    if (window == watched || display == nullptr) {
        return;
    }
    XWindowAttributes attributes;
    if (XGetWindowAttributes(display, window, &attributes) != 0) {
        XSelectInput(display, window, attributes.your_event_mask | VisibilityChangeMask);
        watched = window;
        covered = false;
    }
}

bool WindowCover::nativeEventFilter(const QByteArray& eventType, void* message, long* /*result*/) {
    if (eventType != "xcb_generic_event_t") {
        return false;
    }
    constexpr int typeBits = 0x7F;
    const auto* event = static_cast<const xcb_visibility_notify_event_t*>(message);
    if ((event->response_type & typeBits) == XCB_VISIBILITY_NOTIFY && event->window == watched) {
        covered = event->state == XCB_VISIBILITY_FULLY_OBSCURED;
    }
    return false;
}
