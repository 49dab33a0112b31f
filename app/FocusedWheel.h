#pragma once

#include <QWheelEvent>
#include <QWidget>

/**
 * A control that the mouse wheel changes only while it has the focus, and that the wheel gives no
 * focus: what scrolls past changes nothing.
 */
template <typename Control>
class FocusedWheel : public Control {
public:
    explicit FocusedWheel(QWidget* parent)
        : Control(parent) {
        this->setFocusPolicy(Qt::StrongFocus);
    }

protected:
    void wheelEvent(QWheelEvent* event) override {
        if (this->hasFocus()) {
            Control::wheelEvent(event);
        } else {
            event->ignore();
        }
    }
};
