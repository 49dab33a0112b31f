#pragma once

#include "tests/support/Waiting.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

/**
 * A user in front of the modal dialogs that come up while something runs: every step is handed the
 * next one and is expected to close it.
 */
class DialogDriver {
public:
    using Step = std::function<void(QWidget&)>;

    DialogDriver() = default;
    explicit DialogDriver(std::vector<Step> all)
        : steps(std::move(all)) {}
    ~DialogDriver() = default;
    DialogDriver(const DialogDriver&) = delete;
    DialogDriver& operator=(const DialogDriver&) = delete;

    /** Adds a step for the next dialog, which must be of a type. */
    template <typename Dialog>
    DialogDriver& then(std::function<void(Dialog&)> answer) {
        steps.push_back([answer](QWidget& widget) {
            if (auto* dialog = qobject_cast<Dialog*>(&widget)) {
                answer(*dialog);
            } else {
                ADD_FAILURE() << "unexpected dialog " << widget.metaObject()->className();
            }
        });
        return *this;
    }

    /** Runs something that opens as many dialogs as there are steps. */
    void during(const std::function<void()>& action) {
        scheduleLook();
        action();
        EXPECT_TRUE(waitUntil([this] { return next == steps.size(); }))
            << "only " << next << " dialogs came up";
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

private:
    static constexpr int pollInterval = 5;

    /** Each look is a timer of its own: a step may open the next dialog before it returns. */
    void scheduleLook() {
        QTimer::singleShot(pollInterval, &life, [this] {
            scheduleLook();
            look();
        });
    }

    void look() {
        const QPointer<QWidget> dialog = QApplication::activeModalWidget();
        // Only an active window has a focus for keys.
        if (dialog.isNull() || !dialog->isActiveWindow() || isKnown(dialog)) {
            return;
        }
        known.push_back(dialog);
        if (next == steps.size()) {
            ADD_FAILURE() << "a dialog too many: " << dialog->metaObject()->className();
            dialog->close();
            return;
        }
        const Step step = steps[next];
        ++next;
        step(*dialog);
        if (!dialog.isNull() && dialog->isVisible()) {
            ADD_FAILURE() << "a step left its " << dialog->metaObject()->className() << " open";
            dialog->close();
        }
    }

    bool isKnown(const QWidget* dialog) const {
        return std::find(known.begin(), known.end(), dialog) != known.end();
    }

    std::vector<Step> steps;
    std::size_t next = 0;
    /** The dialogs that had their step. Null once one is gone: another may take its address. */
    std::vector<QPointer<QWidget>> known;
    /** No look outlives the driver. */
    QObject life;
};
