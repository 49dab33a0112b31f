#pragma once

#include <QImage>
#include <QRect>
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
        QRect place;
    };

    /** All windows without another around them that were shown or hidden so far, in order. */
    const std::vector<Change>& changes();

    /** What a part of the display shows at this moment. */
    QImage picture(const QRect& part) const;

private:
    struct Connection;

    std::unique_ptr<Connection> connection;
    std::map<unsigned long, QRect> places;
    std::vector<Change> all;
};
