#pragma once

#include <QKeySequence>
#include <array>
#include <variant>
#include <vector>

/** Whose slot a command calls. */
enum class CommandReceiver { window, documentArea, application };

/** What must be open for a command to be enabled. */
enum class CommandCondition { always, activeFrame, severalFrames };

/** The menus of the menu bar in their order, and none for a command that is in no menu. */
enum class CommandMenu { viewer, window, hyperboloid, helix, save, help, none };

/**
 * What there is to know of a command, or of a separator between commands.
 *
 * All texts stand in the translation context "MainWindow".
 */
struct Command {
    /** Nothing, the platform's keys for a purpose, or a translatable text such as "Ctrl+T". */
    using Shortcut = std::variant<std::monostate, QKeySequence::StandardKey, const char*>;

    /** The action's object name; empty for a separator that nothing looks for. */
    const char* name;
    /** Null for a separator. */
    const char* text;
    /** Null for none. */
    const char* statusTip;
    Shortcut shortcut;
    CommandReceiver receiver;
    /** As SLOT() gives it. */
    const char* slot;
    CommandMenu menu;
    CommandCondition condition;
    /** The path of a picture, null for none. */
    const char* icon = nullptr;

    bool isSeparator() const { return text == nullptr; }
};

/** What there is to know of a menu. */
struct CommandMenuTitle {
    CommandMenu menu;
    const char* title;
    /** Whether the menu bar has a separator before this menu. */
    bool afterSeparator;
};

/** The commands of the main window and the menus that they are in: the one place to add one. */
namespace CommandTable {

/** All commands, those of a menu in their order there. */
const std::vector<Command>& commands();

/** The menus in the order of the menu bar. */
const std::array<CommandMenuTitle, 6>& menus();

} // namespace CommandTable
