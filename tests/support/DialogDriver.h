#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

/**
 * Answers the modal dialogs that come up while something runs, one step after the other: each step
 * waits for a dialog of its type and is handed the dialog.
 */
class DialogDriver {
public:
    /** Adds a step for the next dialog of a type. */
    template <typename Dialog>
    DialogDriver& then(std::function<void(Dialog&)> answer) {
        steps.push_back([answer] {
            auto* dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            if (dialog == nullptr || !dialog->isVisible()) {
                return false;
            }
            answer(*dialog);
            return true;
        });
        return *this;
    }

    /** Runs something that opens the dialogs, and expects that every step had its turn. */
    void during(const std::function<void()>& action) {
        scheduleLook();
        action();
        EXPECT_EQ(next, steps.size()) << "dialogs that did not come up";
    }

private:
    static constexpr int pollInterval = 10;
    static constexpr int patienceForUnexpected = 100;

    /** Each look is a timer of its own: an answer may open the next dialog before it returns. */
    void scheduleLook() {
        QTimer::singleShot(pollInterval, &life, [this] {
            scheduleLook();
            look();
        });
    }

    void look() {
        if (next < steps.size()) {
            const std::size_t current = next++;
            if (!steps[current]()) {
                next = current;
            }
        } else {
            endUnexpectedDialog();
        }
    }

    /** A dialog that no step asked for would block the test for ever. */
    void endUnexpectedDialog() {
        QWidget* dialog = QApplication::activeModalWidget();
        if (dialog != nullptr && dialog->isVisible() && ++unexpected > patienceForUnexpected) {
            ADD_FAILURE() << "unexpected dialog " << dialog->metaObject()->className();
            dialog->close();
            unexpected = 0;
        }
    }

    std::vector<std::function<bool()>> steps;
    std::size_t next = 0;
    /** No look outlives the driver. */
    QObject life;
    int unexpected = 0;
};
