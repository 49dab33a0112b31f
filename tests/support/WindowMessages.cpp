#include "tests/support/WindowMessages.h"

#include <X11/Xlib.h>
#include <memory>

namespace {

using Connection = std::unique_ptr<Display, int (*)(Display*)>;

Connection connectTo(const std::string& display) {
    return {XOpenDisplay(display.c_str()), XCloseDisplay};
}

} // namespace

bool askToClose(const std::string& display, unsigned long window) {
    const Connection connection = connectTo(display);
    if (connection == nullptr) {
        return false;
    }
    XEvent message{};
    message.xclient.type = ClientMessage;
    message.xclient.window = window;
    message.xclient.format = 32;
    message.xclient.message_type = XInternAtom(connection.get(), "WM_PROTOCOLS", False);
    message.xclient.data.l[0] =
        static_cast<long>(XInternAtom(connection.get(), "WM_DELETE_WINDOW", False));
    message.xclient.data.l[1] = CurrentTime;
    return XSendEvent(connection.get(), window, False, NoEventMask, &message) != 0;
}

bool placeWindow(const std::string& display, unsigned long window, int x, int y, int width,
                 int height) {
    const Connection connection = connectTo(display);
    return connection != nullptr &&
           XMoveResizeWindow(connection.get(), window, x, y, static_cast<unsigned>(width),
                             static_cast<unsigned>(height)) != 0;
}
