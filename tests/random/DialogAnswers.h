#pragma once

#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <functional>
#include <vector>

/**
 * Answers every modal dialog that comes up, and closes every popup menu: as long as this lives,
 * nothing that waits for the user waits for ever.
 */
class DialogAnswers {
public:
    /** Handles one dialog; it may only queue what closes the dialog. */
    using Answer = std::function<void(QWidget&)>;

    DialogAnswers();

    /** Runs something that may open dialogs, each of which gets the answer. */
    void during(const Answer& answer, const std::function<void()>& open);

    /** Closes a dialog as its button of that name does, once the answer has returned. */
    static void acceptLater(QWidget& dialog) { closeLater(dialog, "accept"); }
    static void rejectLater(QWidget& dialog) { closeLater(dialog, "reject"); }

private:
    static void closeLater(QWidget& dialog, const char* slot);
    void look();

    Answer currentAnswer = rejectLater;
    /**
     * The dialogs that have had their answer. Each is null again once the dialog is gone: the next
     * one may take its address.
     */
    std::vector<QPointer<QWidget>> handled;
    int looksSinceHandled = 0;
    QTimer poll;
};
