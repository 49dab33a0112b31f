#include "tests/program/WindowHistory.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>

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
            places[event.xcreatewindow.window] = {event.xcreatewindow.x, event.xcreatewindow.y,
                                                  event.xcreatewindow.width,
                                                  event.xcreatewindow.height};
        } else if (event.type == ConfigureNotify) {
            places[event.xconfigure.window] = {event.xconfigure.x, event.xconfigure.y,
                                               event.xconfigure.width, event.xconfigure.height};
        } else if (event.type == MapNotify) {
            all.push_back({event.xmap.window, true, places[event.xmap.window]});
        } else if (event.type == UnmapNotify) {
            all.push_back({event.xunmap.window, false, places[event.xunmap.window]});
        }
    }
    return all;
}

QImage WindowHistory::picture(const QRect& part) const {
    Display* opened = connection->display.get();
    const std::unique_ptr<XImage, void (*)(XImage*)> pixels(
        XGetImage(opened, XDefaultRootWindow(opened), part.x(), part.y(),
                  static_cast<unsigned int>(part.width()), static_cast<unsigned int>(part.height()),
                  AllPlanes, ZPixmap),
        [](XImage* image) { XDestroyImage(image); });
    QImage seen(part.size(), QImage::Format_RGB32);
    for (int y = 0; y < part.height(); ++y) {
        for (int x = 0; x < part.width(); ++x) {
            seen.setPixel(x, y, static_cast<QRgb>(XGetPixel(pixels.get(), x, y)));
        }
    }
    return seen;
}
