#pragma once

#include <QObject>
#include <functional>

class QWidget;

/**
 * Waits for a window that is not to be seen, minimised or on another desktop, to come back.
 *
 * What is hidden within the window needs no waiting: it is painted when it is uncovered. The window
 * itself may come back with all its contents unpainted, or painted before it counts as back.
 */
class WindowReturn : public QObject {
public:
    /** @param sign called once for each wait, at any sign that the window might be back */
    explicit WindowReturn(std::function<void()> sign);
    ~WindowReturn() override = default;
    WindowReturn(const WindowReturn&) = delete;
    WindowReturn& operator=(const WindowReturn&) = delete;

    /** Waits for a top-level window; nothing happens while it has never been shown. */
    void waitFor(QWidget& window);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::function<void()> sign;
    bool isWaiting = false;
};
