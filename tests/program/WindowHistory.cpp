#include "tests/program/WindowHistory.h"

#include <X11/Xlib.h>

struct WindowHistory::Connection {
    std::unique_ptr<Display, int (*)(Display*)> display;
};

WindowHistory::~WindowHistory() = default;

WindowHistory::WindowHistory(const QString& display)
    : connection(std::make_unique<Connection>(
          Connection{{XOpenDisplay(display.toLocal8Bit().constData()), XCloseDisplay}})) {
    Display* opened = connection->display.get();
    if (opened == nullptr) {
        return;
    }
    XSelectInput(opened, XDefaultRootWindow(opened), SubstructureNotifyMask);
    XSync(opened, False);
}

const std::vector<WindowHistory::Change>& WindowHistory::changes() {
    Display* opened = connection->display.get();
    while (opened != nullptr && XPending(opened) > 0) {
        XEvent event;
        XNextEvent(opened, &event);
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
