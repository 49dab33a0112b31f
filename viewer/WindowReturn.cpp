#include "viewer/WindowReturn.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>
#include <utility>

WindowReturn::WindowReturn(std::function<void()> signOfReturn)
    : sign(std::move(signOfReturn)) {}

void WindowReturn::waitFor(QWidget& window) {
    QWindow* onScreen = window.windowHandle();
    if (onScreen == nullptr) {
        return;
    }
    // The widget knows whether it is minimised, its window on the screen whether that is exposed.
    // Installed once more, a filter only changes its place.
    window.installEventFilter(this);
    onScreen->installEventFilter(this);
    isWaiting = true;
}

bool WindowReturn::eventFilter(QObject* /*watched*/, QEvent* event) {
    const bool isSign =
        event->type() == QEvent::Expose || event->type() == QEvent::WindowStateChange;
    if (isWaiting && isSign) {
        isWaiting = false;
        sign();
    }
    return false;
}
