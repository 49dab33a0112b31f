#pragma once

#include <QSize>
#include <QString>
#include <map>
#include <memory>
#include <vector>

/**
 * What comes on a display and leaves it, from the start of this object on; nothing without a
 * connection to the display.
 */
class WindowHistory {
public:
    explicit WindowHistory(const QString& display);
    ~WindowHistory();
    WindowHistory(const WindowHistory&) = delete;
    WindowHistory& operator=(const WindowHistory&) = delete;

    struct Change {
        unsigned long window;
        bool shown;
        /** When it was shown. */
        QSize size;
    };

    /** All windows without another around them that were shown or hidden so far, in order. */
    const std::vector<Change>& changes();

private:
    struct Connection;

    std::unique_ptr<Connection> connection;
    std::map<unsigned long, QSize> sizes;
    std::vector<Change> all;
};
