#pragma once

#include <memory>

class QRect;

/**
 * A window of another client of the display, as long as it lives: over all others, and in no window
 * manager's hands.
 */
class ForeignWindow {
public:
    /** @param place on the screen, in pixels */
    explicit ForeignWindow(const QRect& place);

private:
    /** With its end the server closes the window. */
    std::shared_ptr<void> connection;
};
