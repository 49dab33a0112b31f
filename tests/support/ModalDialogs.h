#pragma once

#include "tests/support/Waiting.h"

#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <gtest/gtest.h>
#include <vector>

/**
 * A user in front of modal dialogs: every step handles the next one that opens and is expected to
 * close it.
 */
class ModalDialogs {
public:
    using Step = std::function<void(QWidget&)>;

    /** Runs something that opens as many modal dialogs, one after the other, as there are steps. */
    static void answer(const std::function<void()>& open, const std::vector<Step>& steps) {
        ModalDialogs user(steps);
        open();
        EXPECT_TRUE(waitUntil([&] { return user.handled == steps.size(); }))
            << "only " << user.handled << " dialogs opened";
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

private:
    explicit ModalDialogs(const std::vector<Step>& all)
        : steps(all) {
        QObject::connect(&poll, &QTimer::timeout, [this] { handleNext(); });
        poll.start(pollInterval);
    }

    void handleNext() {
        QWidget* dialog = QApplication::activeModalWidget();
        // Only an active window has a focus for keys.
        if (dialog == nullptr || dialog == current || !dialog->isActiveWindow()) {
            return;
        }
        current = dialog;
        if (handled == steps.size()) {
            ADD_FAILURE() << "a dialog too many: " << dialog->metaObject()->className();
            dialog->close();
            return;
        }
        const Step& step = steps[handled];
        ++handled;
        step(*dialog);
        if (current && current->isVisible()) {
            ADD_FAILURE() << "step " << handled << " left its dialog open";
            current->close();
        }
    }

    static constexpr int pollInterval = 5;

    const std::vector<Step>& steps;
    std::size_t handled = 0;
    /** Null again once the handled dialog is gone: the next one may take its address. */
    QPointer<QWidget> current;
    QTimer poll;
};
