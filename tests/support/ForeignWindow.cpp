#include "tests/support/ForeignWindow.h"

#include <QRect>
#include <X11/Xlib.h>

ForeignWindow::ForeignWindow(const QRect& place)
    : connection(XOpenDisplay(nullptr), [](Display* display) { XCloseDisplay(display); }) {
    auto* display = static_cast<Display*>(connection.get());
    const Window window = XCreateSimpleWindow(display, DefaultRootWindow(display), place.x(),
                                              place.y(), static_cast<unsigned>(place.width()),
                                              static_cast<unsigned>(place.height()), 0, 0, 0);
    XSetWindowAttributes attributes{};
    attributes.override_redirect = True;
    XChangeWindowAttributes(display, window, CWOverrideRedirect, &attributes);
    XMapRaised(display, window);
    XSync(display, False);
}
