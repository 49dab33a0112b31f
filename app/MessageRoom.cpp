#include "app/MessageRoom.h"

#include <QEvent>
#include <QFontMetrics>
#include <QStatusBar>
#include <QTextDocument>

MessageRoom::MessageRoom(QStatusBar& statusBar)
    : QObject(&statusBar)
    , bar(statusBar) {
    // Otherwise a window with a long message could not be made smaller.
    bar.setMinimumWidth(1);
    bar.installEventFilter(this);
    connect(&bar, &QStatusBar::messageChanged, this, &MessageRoom::update);
}

bool MessageRoom::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) {
        update();
    }
    return QObject::eventFilter(watched, event);
}

void MessageRoom::update() {
    const QString message = bar.currentMessage();
    const int needed = bar.fontMetrics().horizontalAdvance(message + "MM");
    // What finds no room can be read by resting the mouse on it, as it stands: a path may hold
    // tags.
    bar.setToolTip(message.isEmpty() ? QString()
                                     : Qt::convertFromPlainText(message, Qt::WhiteSpaceNormal));
    bar.setContentsMargins(message.isEmpty() ? 0 : qMin(needed, bar.width() / 3), 0, 0, 0);
}
