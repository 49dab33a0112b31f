#include "tests/random/DialogMoves.h"

#include "app/HyperboloidParameterDialog.h"
#include "tests/support/OpenedWindow.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QDoubleSpinBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QSlider>
#include <QSpinBox>
#include <array>
#include <cmath>
#include <sstream>

namespace {

constexpr std::size_t mostSliderWindows = 4;

/** The fifteen values of the parameters' dialog, the real numbers in the order of its fields. */
struct Parameters {
    std::array<double, 13> reals;
    std::array<int, 2> precisions;
};

std::string textOf(const Parameters& parameters) {
    std::ostringstream text;
    for (const double real : parameters.reals) {
        text << real << ' ';
    }
    text << "grid " << parameters.precisions[0] << " x " << parameters.precisions[1];
    return text.str();
}

int anyPrecision(Dice& dice) {
    constexpr int coarsest = 5;
    if (dice.percent(3)) {
        return dice.between(100, 500);
    }
    return dice.percent(10) ? coarsest : dice.between(coarsest, 40);
}

/** Moduli whose quadric is an ellipse in every section: K13²/K1 + K23²/K2 is less than K3. */
std::array<double, 5> wellFormedModuli(Dice& dice) {
    const double K1 = dice.hundredth(0.5, 3);
    const double K2 = K1 + dice.hundredth(0, 2);
    const double K3 = dice.hundredth(0.5, 3);
    const double share = dice.hundredth(-1, 1);
    const double K13 = share * std::sqrt(K1 * K3 / 2.5);
    const double K23 = dice.hundredth(-1, 1) * std::sqrt(K2 * K3 / 2.5);
    return {K1, K2, K3, K13, K23};
}

/** Moduli at the edges of what can be entered; most are refused. */
std::array<double, 5> anyModuli(Dice& dice) {
    return {dice.hundredth(0.01, 100), dice.hundredth(0.01, 100), dice.hundredth(0, 100),
            dice.percent(30) ? 0 : dice.hundredth(-100, 100),
            dice.percent(30) ? 0 : dice.hundredth(-100, 100)};
}

Parameters anyParameters(Dice& dice) {
    const auto moduli = dice.percent(70) ? wellFormedModuli(dice) : anyModuli(dice);
    const double reach = dice.percent(80) ? 2 : 100;
    const auto coordinate = [&] {
        return dice.percent(25) ? 0 : dice.hundredth(-reach, reach);
    };
    const auto length = [&] {
        return dice.percent(10) ? 0 : dice.hundredth(0, dice.percent(90) ? 1 : 100);
    };
    // U1, U2, U3, the point's radius, the ranges and the radii of the two axes, as declared.
    return {{moduli[0], moduli[1], moduli[2], moduli[3], moduli[4], coordinate(), coordinate(),
             coordinate(), length() / 3, 7 * length(), 7 * length(), length() / 10, length() / 10},
            {anyPrecision(dice), anyPrecision(dice)}};
}

void enter(const Parameters& parameters, QWidget& dialog) {
    const QList<QDoubleSpinBox*> fields = dialog.findChildren<QDoubleSpinBox*>();
    for (int i = 0; i < fields.size(); ++i) {
        fields[i]->setValue(parameters.reals[static_cast<std::size_t>(i)]);
    }
    const QList<QSpinBox*> grid = dialog.findChildren<QSpinBox*>();
    for (int i = 0; i < grid.size(); ++i) {
        grid[i]->setValue(parameters.precisions[static_cast<std::size_t>(i)]);
    }
}

/** Says yes where that is asked, for example whether a file is to be replaced. */
void confirm(QWidget& dialog) {
    auto* box = qobject_cast<QMessageBox*>(&dialog);
    QAbstractButton* yes = box == nullptr ? nullptr : box->button(QMessageBox::Yes);
    if (yes == nullptr) {
        DialogAnswers::acceptLater(dialog);
    } else {
        QMetaObject::invokeMethod(yes, "click", Qt::QueuedConnection);
    }
}

} // namespace

DialogMoves::DialogMoves(const OpenedWindow& openedWindow)
    : opened(openedWindow) {
    // The file dialog reads a quotation mark as the start of a name of its own, without a folder.
    QDir::setCurrent(folder.path());
    // A disk without room, under a name that needs no suffix.
    QFile::link("/dev/full", folder.filePath("full.txt"));
    QFile::link("/dev/full", folder.filePath("full.eps"));
}

std::vector<Move> DialogMoves::all() {
    return {{"parameters", 6,
             [&](Dice& dice) {
                 return changeParameters(dice);
             }},
            {"appearance window", 2,
             [&](Dice& dice) {
                 return openSliders(dice, "appearanceAct");
             }},
            {"helix window", 3,
             [&](Dice& dice) {
                 return openSliders(dice, "helixParamsAct");
             }},
            {"slider", 14,
             [&](Dice& dice) {
                 return moveSlider(dice);
             }},
            {"close sliders", 2,
             [&](Dice& dice) {
                 return closeSliders(dice);
             }},
            {"export", 2,
             [&](Dice& dice) {
                 return exportTo(dice);
             }},
            {"about", 1, [&](Dice& dice) {
                 return showAbout(dice);
             }}};
}

std::string DialogMoves::changeParameters(Dice& dice) {
    const Parameters parameters = anyParameters(dice);
    const bool cancels = dice.percent(10);
    int dialogs = 0;
    answers.during(
        [&](QWidget& dialog) {
            if (qobject_cast<HyperboloidParameterDialog*>(&dialog) == nullptr) {
                DialogAnswers::acceptLater(dialog);
                return;
            }
            // What was refused once is not tried again.
            if (++dialogs > 1 || cancels) {
                DialogAnswers::rejectLater(dialog);
                return;
            }
            enter(parameters, dialog);
            DialogAnswers::acceptLater(dialog);
        },
        [&] { opened.action("hyperboloidParamsAct").trigger(); });
    return textOf(parameters) + (cancels ? ", cancelled" : "");
}

std::vector<QWidget*> DialogMoves::openSliderWindows() const {
    std::vector<QWidget*> open;
    for (const QPointer<QWidget>& window : sliderWindows) {
        if (window) {
            open.push_back(window);
        }
    }
    return open;
}

std::string DialogMoves::openSliders(Dice& dice, const char* actionName) {
    if (openSliderWindows().size() >= mostSliderWindows) {
        return "enough windows";
    }
    const QWidgetList before = QApplication::topLevelWidgets();
    answers.during(DialogAnswers::acceptLater, [&] { opened.action(actionName).trigger(); });
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (!before.contains(widget) && !widget->findChildren<QSlider*>().isEmpty()) {
            sliderWindows.emplace_back(widget);
            widget->move(dice.between(0, 1000), dice.between(0, 900));
        }
    }
    return "";
}

std::string DialogMoves::moveSlider(Dice& dice) {
    const std::vector<QWidget*> windows = openSliderWindows();
    if (windows.empty()) {
        return "no window";
    }
    const QList<QSlider*> sliders = dice.oneOf(windows)->findChildren<QSlider*>();
    const int row = dice.below(sliders.size());
    QSlider& slider = *sliders[row];
    const int span = slider.maximum() - slider.minimum();
    int value = slider.minimum() + dice.below(span / 3 + 1);
    if (dice.percent(30)) {
        value = dice.percent(50) ? slider.minimum() : slider.maximum();
    }
    slider.setValue(value);
    return "slider " + std::to_string(row) + " of " + std::to_string(sliders.size()) + " to " +
           std::to_string(value);
}

std::string DialogMoves::closeSliders(Dice& dice) {
    const std::vector<QWidget*> windows = openSliderWindows();
    if (windows.empty()) {
        return "no window";
    }
    dice.oneOf(windows)->close();
    return "";
}

std::string DialogMoves::anyPath(Dice& dice) const {
    const std::vector<std::string> paths{folder.filePath("data.txt").toStdString(),
                                         folder.filePath("picture.eps").toStdString(),
                                         folder.filePath("no such folder/x.txt").toStdString(),
                                         folder.path().toStdString(),
                                         folder.filePath("full.txt").toStdString(),
                                         folder.filePath("full.eps").toStdString(),
                                         "",
                                         folder.filePath("*?\"\n").toStdString()};
    return dice.oneOf(paths);
}

std::string DialogMoves::exportTo(Dice& dice) {
    const std::vector<const char*> saves{"saveUAct", "saveXAct", "saveMAct", "saveHelixAct",
                                         "saveImageAct"};
    const char* save = dice.oneOf(saves);
    const std::string path = anyPath(dice);
    answers.during(
        [&](QWidget& dialog) {
            if (auto* fileDialog = qobject_cast<QFileDialog*>(&dialog)) {
                fileDialog->findChild<QLineEdit*>()->setText(QString::fromStdString(path));
            }
            confirm(dialog);
        },
        [&] { opened.action(save).trigger(); });
    return save + (" to \"" + path + '"');
}

std::string DialogMoves::showAbout(Dice& dice) {
    const char* action = dice.percent(50) ? "aboutAct" : "aboutQtAct";
    opened.action(action).trigger();
    return action;
}
