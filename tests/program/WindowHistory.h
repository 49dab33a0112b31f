#pragma once

#include <QSize>
#include <QString>
#include <map>
#include <memory>
#include <vector>

struct _XDisplay;

/**
 * What comes on a display and leaves it, from the start of this object on; nothing without a
 * connection to the display.
 */
class WindowHistory {
public:
    explicit WindowHistory(const QString& display);

    struct Change {
        unsigned long window;
        bool shown;
        /** When it was shown. */
        QSize size;
    };

    /** All windows without another around them that were shown or hidden so far, in order. */
    const std::vector<Change>& changes();

private:
    std::unique_ptr<_XDisplay, int (*)(_XDisplay*)> connection;
    std::map<unsigned long, QSize> sizes;
    std::vector<Change> all;
};
