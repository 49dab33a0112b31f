#include "viewer/WindowTitleKeeper.h"

#include <QEvent>
#include <QWidget>

WindowTitleKeeper::WindowTitleKeeper(QWidget* renamedWindow)
    : window(renamedWindow)
    , title(renamedWindow->windowTitle()) {
    window->installEventFilter(this);
}

WindowTitleKeeper::~WindowTitleKeeper() {
    window->setWindowTitle(title);
}

bool WindowTitleKeeper::eventFilter(QObject* /*watched*/, QEvent* event) {
    return event->type() == QEvent::WindowTitleChange;
}
