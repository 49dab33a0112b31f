#include "app/DocumentRepaint.h"

#include <QEvent>
#include <QGLWidget>

namespace {

/** All of a document but its view, which draws itself wholly anyway. */
QList<QWidget*> partsOf(QWidget& document) {
    QList<QWidget*> parts{&document};
    for (QWidget* part : document.findChildren<QWidget*>()) {
        if (qobject_cast<QGLWidget*>(part) == nullptr) {
            parts.append(part);
        }
    }
    return parts;
}

} // namespace

DocumentRepaint::DocumentRepaint(QWidget* watchedDocument)
    : QObject(watchedDocument)
    , document(watchedDocument) {
    for (QWidget* part : partsOf(*document)) {
        part->installEventFilter(this);
    }
}

bool DocumentRepaint::eventFilter(QObject* /*watched*/, QEvent* event) {
    const bool isPlacing = event->type() == QEvent::Resize || event->type() == QEvent::Move;
    if (isPlacing && event->spontaneous()) {
        for (QWidget* part : partsOf(*document)) {
            part->update();
        }
    }
    return false;
}
