#include "tests/random/DocumentMoves.h"

#include "tests/support/OpenedWindow.h"

#include <QMenu>
#include <QMenuBar>
#include <array>

namespace {

constexpr std::size_t mostHelices = 5;

std::string nameOf(const QMdiSubWindow& subWindow) {
    return subWindow.widget()->windowTitle().toStdString();
}

QMdiSubWindow& anySubWindow(const OpenedWindow& opened, Dice& dice) {
    return *dice.oneOf(opened.area().subWindowList());
}

std::string activate(const OpenedWindow& opened, Dice& dice) {
    QMdiSubWindow& subWindow = anySubWindow(opened, dice);
    opened.area().setActiveSubWindow(&subWindow);
    return nameOf(subWindow);
}

/** Lets a hyperboloid steer a helix, as a user does who clicks one after the other. */
std::string tie(const OpenedWindow& opened, Dice& dice) {
    const std::vector<HelixFrame*> helices = opened.helices();
    if (helices.empty()) {
        return "no helix";
    }
    const HelixFrame& helix = *dice.oneOf(helices);
    const HyperboloidFrame& hyperboloid = opened.hyperboloid(dice.below(3));
    opened.tie(helix, hyperboloid);
    return helix.windowTitle().toStdString() + " to " + hyperboloid.windowTitle().toStdString();
}

std::string chooseInWindowMenu(const OpenedWindow& opened, Dice& dice) {
    opened.call("updateWindowMenu");
    QMenu* menu = opened.window().menuBar()->actions().at(1)->menu();
    QAction* entry = dice.oneOf(menu->actions());
    std::string text = entry->text().toStdString();
    entry->trigger();
    return text;
}

std::string openHelix(const OpenedWindow& opened) {
    if (opened.helices().size() >= mostHelices) {
        return "enough helices";
    }
    opened.action("newAct").trigger();
    return "";
}

std::string close(const OpenedWindow& opened, Dice& dice) {
    QMdiSubWindow& subWindow = anySubWindow(opened, dice);
    std::string name = nameOf(subWindow);
    subWindow.close();
    return name;
}

std::string trigger(const OpenedWindow& opened, Dice& dice,
                    const std::vector<const char*>& actionNames) {
    const char* name = dice.oneOf(actionNames);
    opened.action(name).trigger();
    return name;
}

std::string changeState(const OpenedWindow& opened, Dice& dice) {
    QMdiSubWindow& subWindow = anySubWindow(opened, dice);
    switch (dice.below(4)) {
    case 0:
        subWindow.showMinimized();
        return "minimise " + nameOf(subWindow);
    case 1:
        subWindow.showMaximized();
        return "maximise " + nameOf(subWindow);
    case 2:
        subWindow.showShaded();
        return "shade " + nameOf(subWindow);
    default:
        subWindow.showNormal();
        return "restore " + nameOf(subWindow);
    }
}

std::string resizeWindow(const OpenedWindow& opened, Dice& dice) {
    MainWindow& window = opened.window();
    const QSize size = dice.percent(20) ? window.minimumSizeHint()
                                        : QSize(dice.between(200, 1200), dice.between(150, 950));
    window.resize(size);
    return std::to_string(size.width()) + " x " + std::to_string(size.height());
}

/** Back to a window in which all views can be seen. */
std::string showAllViews(const OpenedWindow& opened) {
    opened.window().showNormal();
    opened.window().resize(OpenedWindow::usualSize);
    for (QMdiSubWindow* subWindow : opened.area().subWindowList()) {
        subWindow->showNormal();
    }
    opened.action("tileAct").trigger();
    return "";
}

std::string minimiseWindow(const OpenedWindow& opened) {
    opened.window().showMinimized();
    QCoreApplication::processEvents();
    opened.window().showNormal();
    return "";
}

} // namespace

std::vector<Move> DocumentMoves::of(const OpenedWindow& opened) {
    return {{"activate", 8,
             [&](Dice& dice) {
                 return activate(opened, dice);
             }},
            {"tie", 10,
             [&](Dice& dice) {
                 return tie(opened, dice);
             }},
            {"window menu", 3,
             [&](Dice& dice) {
                 return chooseInWindowMenu(opened, dice);
             }},
            {"new helix", 4,
             [&](Dice&) {
                 return openHelix(opened);
             }},
            {"close", 3,
             [&](Dice& dice) {
                 return close(opened, dice);
             }},
            {"close all", 1,
             [&](Dice& dice) {
                 return trigger(opened, dice, {"closeAllAct"});
             }},
            {"arrange", 4,
             [&](Dice& dice) {
                 return trigger(opened, dice, {"tileAct", "cascadeAct", "nextAct", "previousAct"});
             }},
            {"state", 2,
             [&](Dice& dice) {
                 return changeState(opened, dice);
             }},
            {"resize", 2,
             [&](Dice& dice) {
                 return resizeWindow(opened, dice);
             }},
            {"show all", 4,
             [&](Dice&) {
                 return showAllViews(opened);
             }},
            {"minimise", 1, [&](Dice&) {
                 return minimiseWindow(opened);
             }}};
}
