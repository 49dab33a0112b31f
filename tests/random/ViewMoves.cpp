#include "tests/random/ViewMoves.h"

#include "tests/support/OpenedWindow.h"
#include "viewer/SoQtGeneralViewer.h"

#include <QWheelEvent>
#include <array>

namespace {

const std::array<Qt::MouseButton, 3> buttons{Qt::LeftButton, Qt::MiddleButton, Qt::RightButton};
const std::array<Qt::KeyboardModifier, 4> modifiers{Qt::NoModifier, Qt::ShiftModifier,
                                                    Qt::ControlModifier, Qt::AltModifier};
const std::array<Qt::Key, 8> directionKeys{Qt::Key_W,  Qt::Key_A,    Qt::Key_S,    Qt::Key_D,
                                           Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right};
const std::array<Qt::Key, 14> otherKeys{Qt::Key_Space,  Qt::Key_Escape, Qt::Key_Home,   Qt::Key_End,
                                        Qt::Key_PageUp, Qt::Key_Tab,    Qt::Key_Return, Qt::Key_F1,
                                        Qt::Key_Plus,   Qt::Key_Minus,  Qt::Key_Delete, Qt::Key_0,
                                        Qt::Key_8,      Qt::Key_Shift};

std::string nameOf(const SoQtGeneralViewerFrame& frame) {
    return frame.windowTitle().toStdString();
}

std::string nameOf(QPoint position) {
    return "(" + std::to_string(position.x()) + ", " + std::to_string(position.y()) + ")";
}

QPoint anywhereIn(const QWidget& widget, Dice& dice) {
    return {dice.below(std::max(widget.width(), 1)), dice.below(std::max(widget.height(), 1))};
}

/** A camera that keeps turning would make what follows depend on the time that passes. */
void stopTurning(const SoQtGeneralViewerFrame& frame) {
    frame.getViewer()->stopAnimating();
}

std::string pick(const OpenedWindow& opened, Dice& dice) {
    SoQtGeneralViewerFrame& frame = *dice.oneOf(opened.frames());
    const ViewDriver driver(frame);
    const bool viewing = dice.percent(30);
    driver.setPickingMode(!viewing);
    const Qt::MouseButton button = dice.oneOf(buttons);
    const QPoint position = anywhereIn(driver.widget(), dice);
    driver.click(button, position);
    stopTurning(frame);
    return nameOf(frame) + (viewing ? " viewing, button " : " picking, button ") +
           std::to_string(button) + " at " + nameOf(position);
}

std::string drag(const OpenedWindow& opened, Dice& dice) {
    SoQtGeneralViewerFrame& frame = *dice.oneOf(opened.frames());
    const ViewDriver driver(frame);
    driver.setPickingMode(dice.percent(10));
    const Qt::MouseButton button = dice.oneOf(buttons);
    const QPoint from = anywhereIn(driver.widget(), dice);
    const QPoint to = anywhereIn(driver.widget(), dice);
    driver.drag(button, from, to);
    stopTurning(frame);
    return nameOf(frame) + ", button " + std::to_string(button) + " from " + nameOf(from) + " to " +
           nameOf(to);
}

std::string turnWheel(const OpenedWindow& opened, Dice& dice) {
    SoQtGeneralViewerFrame& frame = *dice.oneOf(opened.frames());
    const ViewDriver driver(frame);
    const QPoint position = anywhereIn(driver.widget(), dice);
    constexpr int notch = 120;
    const int notches = dice.between(-3, 3);
    QWheelEvent event(position, driver.widget().mapToGlobal(position), QPoint(),
                      QPoint(0, notch * notches), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(&driver.widget(), &event);
    return nameOf(frame) + " by " + std::to_string(notches);
}

std::string step(const OpenedWindow& opened, Dice& dice) {
    SoQtGeneralViewerFrame& frame = opened.hyperboloid(dice.below(3));
    const Qt::Key key = dice.oneOf(directionKeys);
    const int times = dice.between(1, 4);
    for (int i = 0; i < times; ++i) {
        ViewDriver(frame).key(key);
    }
    return nameOf(frame) + ", key " + std::to_string(key) + ", " + std::to_string(times) + " times";
}

std::string pressAnyKey(const OpenedWindow& opened, Dice& dice) {
    SoQtGeneralViewerFrame& frame = *dice.oneOf(opened.frames());
    const Qt::Key key = dice.percent(60) ? dice.oneOf(otherKeys)
                                         : static_cast<Qt::Key>(dice.between(Qt::Key_A, Qt::Key_Z));
    Qt::KeyboardModifier modifier = dice.percent(70) ? Qt::NoModifier : dice.oneOf(modifiers);
    if (key == Qt::Key_Q && modifier == Qt::ControlModifier) {
        // The one key that ends the program.
        modifier = Qt::NoModifier;
    }
    QTest::keyClick(&ViewDriver(frame).widget(), key, modifier);
    stopTurning(frame);
    return nameOf(frame) + ", key " + std::to_string(key) + ", modifier " +
           std::to_string(modifier);
}

std::string viewAll(const OpenedWindow& opened, Dice& dice) {
    SoQtGeneralViewerFrame& frame = *dice.oneOf(opened.frames());
    frame.getViewer()->viewAll();
    return nameOf(frame);
}

} // namespace

std::vector<Move> ViewMoves::of(const OpenedWindow& opened) {
    return {{"pick", 14,
             [&](Dice& dice) {
                 return pick(opened, dice);
             }},
            {"drag", 8,
             [&](Dice& dice) {
                 return drag(opened, dice);
             }},
            {"wheel", 2,
             [&](Dice& dice) {
                 return turnWheel(opened, dice);
             }},
            {"step", 14,
             [&](Dice& dice) {
                 return step(opened, dice);
             }},
            {"key", 8,
             [&](Dice& dice) {
                 return pressAnyKey(opened, dice);
             }},
            {"view all", 4, [&](Dice& dice) {
                 return viewAll(opened, dice);
             }}};
}
