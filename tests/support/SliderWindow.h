#pragma once

#include "tests/support/OpenedWindow.h"

#include <QApplication>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>
#include <algorithm>
#include <gtest/gtest.h>
#include <vector>

/** A window of labels, spin boxes and sliders that one of the main window's commands opens. */
class SliderWindow {
public:
    /** Triggers the command and takes hold of the window that it opens. */
    SliderWindow(const OpenedWindow& opened, const char* actionName) {
        const QWidgetList before = QApplication::topLevelWidgets();
        opened.action(actionName).trigger();
        for (QWidget* widget : QApplication::topLevelWidgets()) {
            if (!before.contains(widget) && !widget->findChildren<QSlider*>().isEmpty()) {
                EXPECT_TRUE(window.isNull()) << "two windows opened";
                window = widget;
            }
        }
        EXPECT_FALSE(window.isNull()) << "no window opened";
        // Beside the main window: what hid a view would be taken for the view.
        window->move(opened.window().frameGeometry().right() + 1, 0);
    }

    QWidget& widget() const { return *window; }
    bool isAlive() const { return !window.isNull(); }

    /** The widgets of a kind from top to bottom. */
    template <typename Widget>
    QList<Widget*> column() const {
        QList<Widget*> found = window->findChildren<Widget*>(QString(), Qt::FindDirectChildrenOnly);
        std::sort(found.begin(), found.end(),
                  [](const Widget* a, const Widget* b) { return a->y() < b->y(); });
        return found;
    }
    QLabel& label(int row) const { return *column<QLabel>().at(row); }
    QSpinBox& spinBox(int row) const { return *column<QSpinBox>().at(row); }
    QSlider& slider(int row) const { return *column<QSlider>().at(row); }

    std::vector<int> spinBoxValues() const {
        std::vector<int> values;
        for (const QSpinBox* box : column<QSpinBox>()) {
            values.push_back(box->value());
        }
        return values;
    }

    /** Replaces a spin box's text as a user does. */
    void type(int row, const char* text) const {
        spinBox(row).selectAll();
        QTest::keyClicks(&spinBox(row), text);
    }

    /** Closes the window and waits until it is gone. */
    void close() {
        window->close();
        EXPECT_TRUE(waitUntil([&] { return window.isNull(); }));
    }

private:
    QPointer<QWidget> window;
};
