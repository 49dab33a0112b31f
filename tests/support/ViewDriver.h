#pragma once

#include <Inventor/SbVec3f.h>
#include <QImage>
#include <QPoint>
#include <Qt>

class QWidget;
class SoQtGeneralViewerFrame;

/** Mouse, keyboard and eyes of a user in front of one frame's view. */
class ViewDriver {
public:
    explicit ViewDriver(SoQtGeneralViewerFrame& frame);

    /** The widget that OpenGL draws into. */
    QWidget& widget() const;

    /** Moves the mouse there and presses and releases a button. */
    void click(Qt::MouseButton button, QPoint position) const;
    void drag(Qt::MouseButton button, QPoint from, QPoint to) const;
    /** Moves the mouse there while the button is down. */
    void moveDragging(Qt::MouseButton button, QPoint to) const;
    void key(Qt::Key key) const;

    /** Whether scene clicks choose (true) or move the camera (false). */
    void setPickingMode(bool picking) const;

    /** Where a point of the scene is seen, in the widget's pixels from its upper left corner. */
    QPoint positionOf(const SbVec3f& point) const;

    /** What the screen shows of the view. */
    QImage grab() const;

    /** Whether the view shows a scene, rather than its background only. */
    bool isDrawn() const;

private:
    SoQtGeneralViewerFrame* frame;
};
