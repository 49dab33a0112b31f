#include "app/WindowPlace.h"

#include <QPoint>
#include <QSettings>
#include <QSize>
#include <QWidget>

namespace {

constexpr QPoint defaultPosition(200, 200);
constexpr QSize defaultSize(400, 400);

constexpr const char* organisation = "Trolltech";
constexpr const char* application = "MDI Viewer";
constexpr const char* positionKey = "pos";
constexpr const char* sizeKey = "size";

} // namespace

void WindowPlace::restore(QWidget& window) {
    const QSettings settings(organisation, application);
    const QVariant position = settings.value(positionKey);
    window.move(position.type() == QVariant::Point ? position.toPoint() : defaultPosition);
    const QSize size = settings.value(sizeKey).toSize();
    window.resize(size.isValid() ? size : defaultSize);
}

void WindowPlace::store(const QWidget& window) {
    QSettings settings(organisation, application);
    settings.setValue(positionKey, window.pos());
    settings.setValue(sizeKey, window.size());
}
