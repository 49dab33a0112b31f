#include "tests/support/WindowMessages.h"

#include <X11/Xlib.h>
#include <memory>

bool askToClose(const std::string& display, unsigned long window) {
    const std::unique_ptr<Display, int (*)(Display*)> connection(XOpenDisplay(display.c_str()),
                                                                 XCloseDisplay);
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
