#include "tests/support/ViewDriver.h"

#include "viewer/SoQtGeneralViewer.h"
#include "viewer/SoQtGeneralViewerFrame.h"

#include <Inventor/SbViewportRegion.h>
#include <Inventor/nodes/SoCamera.h>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>
#include <algorithm>

namespace {

/** What a drawn scene covers at the very least, in pixels: a helix may be a thin line. */
constexpr int smallestCover = 30;

/** The part of a view, from its upper left, that is free of the examiner's axis cross. */
constexpr double shareWithoutCross = 0.7;

} // namespace

ViewDriver::ViewDriver(SoQtGeneralViewerFrame& drivenFrame)
    : frame(&drivenFrame) {}

QWidget& ViewDriver::widget() const {
    return *frame->getViewer()->getGLWidget();
}

void ViewDriver::click(Qt::MouseButton button, QPoint position) const {
    QTest::mouseMove(&widget(), position);
    QTest::mouseClick(&widget(), button, Qt::NoModifier, position);
}

void ViewDriver::drag(Qt::MouseButton button, QPoint from, QPoint to) const {
    QTest::mousePress(&widget(), button, Qt::NoModifier, from);
    constexpr int steps = 4;
    for (int step = 1; step <= steps; ++step) {
        moveDragging(button, from + (to - from) * step / steps);
    }
    QTest::mouseRelease(&widget(), button, Qt::NoModifier, to);
}

void ViewDriver::moveDragging(Qt::MouseButton button, QPoint to) const {
    QMouseEvent move(QEvent::MouseMove, to, Qt::NoButton, button, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget(), &move);
}

void ViewDriver::key(Qt::Key key) const {
    QTest::keyClick(&widget(), key);
}

void ViewDriver::setPickingMode(bool picking) const {
    frame->getViewer()->setViewing(!picking);
}

QPoint ViewDriver::positionOf(const SbVec3f& point) const {
    const SbViewportRegion& region = frame->getViewer()->getViewportRegion();
    const SoCamera& camera = *frame->getViewer()->getCamera();
    SbVec3f onScreen;
    camera.getViewVolume(region.getViewportAspectRatio()).projectToScreen(point, onScreen);
    const SbVec2s size = region.getViewportSizePixels();
    return {static_cast<int>(onScreen[0] * static_cast<float>(size[0])),
            static_cast<int>((1 - onScreen[1]) * static_cast<float>(size[1]))};
}

QImage ViewDriver::grab() const {
    const QPoint corner = widget().mapToGlobal(QPoint(0, 0));
    return QGuiApplication::primaryScreen()
        ->grabWindow(0, corner.x(), corner.y(), widget().width(), widget().height())
        .toImage()
        .convertToFormat(QImage::Format_RGB32);
}

bool ViewDriver::isDrawn() const {
    const QImage image = grab();
    const SbColor& color = frame->getViewer()->getBackgroundColor();
    const QRgb background = QColor::fromRgbF(color[0], color[1], color[2]).rgb();
    const int width = static_cast<int>(shareWithoutCross * image.width());
    const int height = static_cast<int>(shareWithoutCross * image.height());
    int covered = 0;
    for (int y = 0; y < height; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        covered += static_cast<int>(
            std::count_if(line, line + width, [&](QRgb pixel) { return pixel != background; }));
    }
    return covered > smallestCover;
}
