#pragma once

#include "tests/random/DialogAnswers.h"
#include "tests/random/Move.h"

#include <QPointer>
#include <QTemporaryDir>
#include <QWidget>
#include <vector>

class OpenedWindow;

/** What a user does in dialogs and in the windows of sliders, several of which may be open. */
class DialogMoves {
public:
    explicit DialogMoves(const OpenedWindow& openedWindow);

    std::vector<Move> all();

private:
    std::string changeParameters(Dice& dice);
    std::string openSliders(Dice& dice, const char* actionName);
    std::string moveSlider(Dice& dice);
    std::string closeSliders(Dice& dice);
    std::string exportTo(Dice& dice);
    std::string showAbout(Dice& dice);
    std::string anyPath(Dice& dice) const;
    std::vector<QWidget*> openSliderWindows() const;

    const OpenedWindow& opened;
    DialogAnswers answers;
    QTemporaryDir folder;
    std::vector<QPointer<QWidget>> sliderWindows;
};
