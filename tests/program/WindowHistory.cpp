#include "tests/program/WindowHistory.h"

#include <X11/Xlib.h>

WindowHistory::WindowHistory(const QString& display)
    : connection(XOpenDisplay(display.toLocal8Bit().constData()), XCloseDisplay) {
    if (connection == nullptr) {
        return;
    }
    XSelectInput(connection.get(), XDefaultRootWindow(connection.get()), SubstructureNotifyMask);
    XSync(connection.get(), False);
}

const std::vector<WindowHistory::Change>& WindowHistory::changes() {
    while (connection != nullptr && XPending(connection.get()) > 0) {
        XEvent event;
        XNextEvent(connection.get(), &event);
        if (event.xany.send_event != False) {
            // A program that hides its window tells the window manager so once more.
            continue;
        }
        if (event.type == CreateNotify) {
            sizes[event.xcreatewindow.window] = {event.xcreatewindow.width,
                                                 event.xcreatewindow.height};
        } else if (event.type == ConfigureNotify) {
            sizes[event.xconfigure.window] = {event.xconfigure.width, event.xconfigure.height};
        } else if (event.type == MapNotify) {
            all.push_back({event.xmap.window, true, sizes[event.xmap.window]});
        } else if (event.type == UnmapNotify) {
            all.push_back({event.xunmap.window, false, sizes[event.xunmap.window]});
        }
    }
    return all;
}
