#include "app/StatusMessage.h"

#include <QMainWindow>
#include <QStatusBar>
#include <QStatusTipEvent>

StatusMessage::StatusMessage(QMainWindow& mainWindow)
    : window(mainWindow) {
    window.installEventFilter(this);
}

void StatusMessage::say(const std::optional<QString>& text) {
    if (text) {
        lastText = *text;
        window.statusBar()->showMessage(lastText);
    }
}

bool StatusMessage::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::StatusTip &&
        static_cast<QStatusTipEvent*>(event)->tip().isEmpty()) {
        window.statusBar()->showMessage(lastText);
        return true;
    }
    return QObject::eventFilter(watched, event);
}
