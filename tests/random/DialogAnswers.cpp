#include "tests/random/DialogAnswers.h"

#include <QApplication>
#include <algorithm>

namespace {

constexpr int millisecondsBetweenLooks = 2;

/** A dialog that refuses its answer, for example a file dialog on a bad name, is then rejected. */
constexpr int looksUntilRejected = 50;

} // namespace

DialogAnswers::DialogAnswers() {
    QObject::connect(&poll, &QTimer::timeout, [this] { look(); });
    poll.start(millisecondsBetweenLooks);
}

void DialogAnswers::during(const Answer& answer, const std::function<void()>& open) {
    handled.clear();
    currentAnswer = answer;
    open();
    currentAnswer = rejectLater;
}

void DialogAnswers::closeLater(QWidget& dialog, const char* slot) {
    QMetaObject::invokeMethod(&dialog, slot, Qt::QueuedConnection);
}

void DialogAnswers::look() {
    if (QWidget* popup = QApplication::activePopupWidget()) {
        popup->close();
    }
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr || !dialog->isVisible()) {
        return;
    }
    if (std::find(handled.begin(), handled.end(), dialog) == handled.end()) {
        handled.emplace_back(dialog);
        looksSinceHandled = 0;
        currentAnswer(*dialog);
    } else if (++looksSinceHandled > looksUntilRejected) {
        looksSinceHandled = 0;
        rejectLater(*dialog);
    }
}
