#include "app/CommandTable.h"

#include <QObject>

namespace {

using Condition = CommandCondition;
using Menu = CommandMenu;
using Receiver = CommandReceiver;

constexpr std::monostate noShortcut;
constexpr const char* noTip = nullptr;

Command separator(Menu menu, const char* name = "") {
    return {name, nullptr, noTip, noShortcut, Receiver::window, nullptr, menu, Condition::always};
}

} // namespace

const std::vector<Command>& CommandTable::commands() {
    static const std::vector<Command> table{
        // There is deliberately no such picture: the action shows its text only.
        {"newAct", QT_TRANSLATE_NOOP("MainWindow", "&New"),
         QT_TRANSLATE_NOOP("MainWindow", "Create a new viewer"), QKeySequence::New,
         Receiver::window, SLOT(newViewer()), Menu::viewer, Condition::always, ":/images/new.png"},
        separator(Menu::viewer),
        {"exitAct", QT_TRANSLATE_NOOP("MainWindow", "E&xit"),
         QT_TRANSLATE_NOOP("MainWindow", "Exit the application"), QKeySequence::Quit,
         Receiver::application, SLOT(closeAllWindows()), Menu::viewer, Condition::always},

        {"closeAct", QT_TRANSLATE_NOOP("MainWindow", "Cl&ose"),
         QT_TRANSLATE_NOOP("MainWindow", "Close the active window"), noShortcut,
         Receiver::documentArea, SLOT(closeActiveSubWindow()), Menu::window,
         Condition::activeFrame},
        {"closeAllAct", QT_TRANSLATE_NOOP("MainWindow", "Close &All"),
         QT_TRANSLATE_NOOP("MainWindow", "Close all the windows"), noShortcut, Receiver::window,
         SLOT(closeAllSubWindows()), Menu::window, Condition::activeFrame},
        separator(Menu::window),
        {"tileAct", QT_TRANSLATE_NOOP("MainWindow", "&Tile"),
         QT_TRANSLATE_NOOP("MainWindow", "Tile the windows"),
         QT_TRANSLATE_NOOP("MainWindow", "Ctrl+T"), Receiver::documentArea, SLOT(tileSubWindows()),
         Menu::window, Condition::activeFrame},
        {"cascadeAct", QT_TRANSLATE_NOOP("MainWindow", "&Cascade"),
         QT_TRANSLATE_NOOP("MainWindow", "Cascade the windows"), noShortcut, Receiver::documentArea,
         SLOT(cascadeSubWindows()), Menu::window, Condition::activeFrame},
        separator(Menu::window),
        {"nextAct", QT_TRANSLATE_NOOP("MainWindow", "Ne&xt"),
         QT_TRANSLATE_NOOP("MainWindow", "Move the focus to the next window"),
         QKeySequence::NextChild, Receiver::documentArea, SLOT(activateNextSubWindow()),
         Menu::window, Condition::severalFrames},
        {"previousAct", QT_TRANSLATE_NOOP("MainWindow", "Pre&vious"),
         QT_TRANSLATE_NOOP("MainWindow", "Move the focus to the previous window"),
         QKeySequence::PreviousChild, Receiver::documentArea, SLOT(activatePreviousSubWindow()),
         Menu::window, Condition::severalFrames},
        separator(Menu::window, "separatorAct"),

        {"appearanceAct", QT_TRANSLATE_NOOP("MainWindow", "Change Appearance"), noTip, noShortcut,
         Receiver::window, SLOT(changeHyperboloidTransparency()), Menu::hyperboloid,
         Condition::always},
        // The two commands of this text are told apart by their menu.
        {"hyperboloidParamsAct", QT_TRANSLATE_NOOP("MainWindow", "Change Parameters"), noTip,
         QT_TRANSLATE_NOOP("MainWindow", "Ctrl+P"), Receiver::window,
         SLOT(changeHyperboloidParameters()), Menu::hyperboloid, Condition::always},
        {"helixParamsAct", QT_TRANSLATE_NOOP("MainWindow", "Change Parameters"), noTip, noShortcut,
         Receiver::window, SLOT(setHelixParameters()), Menu::helix, Condition::always},

        {"saveUAct", QT_TRANSLATE_NOOP("MainWindow", "U Hyperboloid"), noTip, noShortcut,
         Receiver::window, SLOT(saveUHyperboloidData()), Menu::save, Condition::always},
        {"saveXAct", QT_TRANSLATE_NOOP("MainWindow", "X Hyperboloid"), noTip, noShortcut,
         Receiver::window, SLOT(saveXHyperboloidData()), Menu::save, Condition::always},
        {"saveMAct", QT_TRANSLATE_NOOP("MainWindow", "M Hyperboloid"), noTip, noShortcut,
         Receiver::window, SLOT(saveMHyperboloidData()), Menu::save, Condition::always},
        {"saveHelixAct", QT_TRANSLATE_NOOP("MainWindow", "Helix"), noTip, noShortcut,
         Receiver::window, SLOT(saveHelixData()), Menu::save, Condition::always},
        // On purpose in no menu and without a shortcut: it is there for code that triggers it.
        {"saveImageAct", QT_TRANSLATE_NOOP("MainWindow", "Image"), noTip, noShortcut,
         Receiver::window, SLOT(saveCurrentImage()), Menu::none, Condition::always},

        {"aboutAct", QT_TRANSLATE_NOOP("MainWindow", "&About"),
         QT_TRANSLATE_NOOP("MainWindow", "Show the application's About box"), noShortcut,
         Receiver::window, SLOT(about()), Menu::help, Condition::always},
        {"aboutQtAct", QT_TRANSLATE_NOOP("MainWindow", "About &Qt"),
         QT_TRANSLATE_NOOP("MainWindow", "Show the Qt library's About box"), noShortcut,
         Receiver::application, SLOT(aboutQt()), Menu::help, Condition::always},
    };
    return table;
}

const std::array<CommandMenuTitle, 6>& CommandTable::menus() {
    static constexpr std::array<CommandMenuTitle, 6> table{{
        {Menu::viewer, QT_TRANSLATE_NOOP("MainWindow", "&Viewer"), false},
        {Menu::window, QT_TRANSLATE_NOOP("MainWindow", "&Window"), false},
        {Menu::hyperboloid, QT_TRANSLATE_NOOP("MainWindow", "Edit Hyperboloid"), false},
        {Menu::helix, QT_TRANSLATE_NOOP("MainWindow", "Edit Helix"), false},
        {Menu::save, QT_TRANSLATE_NOOP("MainWindow", "Save Data"), false},
        {Menu::help, QT_TRANSLATE_NOOP("MainWindow", "&Help"), true},
    }};
    return table;
}
