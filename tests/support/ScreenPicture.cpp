#include "tests/support/ScreenPicture.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <memory>

QImage screenPicture(const std::string& display) {
    const std::unique_ptr<Display, int (*)(Display*)> connection(XOpenDisplay(display.c_str()),
                                                                 XCloseDisplay);
    if (connection == nullptr) {
        return {};
    }
    const int screen = XDefaultScreen(connection.get());
    const auto width = static_cast<unsigned>(XDisplayWidth(connection.get(), screen));
    const auto height = static_cast<unsigned>(XDisplayHeight(connection.get(), screen));
    const std::unique_ptr<XImage, int (*)(XImage*)> seen(
        XGetImage(connection.get(), XRootWindow(connection.get(), screen), 0, 0, width, height,
                  AllPlanes, ZPixmap),
        [](XImage* image) { return XDestroyImage(image); });
    if (seen == nullptr) {
        return {};
    }
    const auto* pixels = reinterpret_cast<const uchar*>(seen->data);
    // The copy outlives the pixels; it and the conversion make the unused byte of each the same.
    return QImage(pixels, seen->width, seen->height, seen->bytes_per_line, QImage::Format_RGB32)
        .copy()
        .convertToFormat(QImage::Format_RGB888)
        .convertToFormat(QImage::Format_RGB32);
}
