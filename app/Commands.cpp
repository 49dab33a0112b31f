#include "app/Commands.h"

#include <QAction>
#include <QApplication>
#include <QIcon>
#include <QMainWindow>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>

namespace {

QString translated(const char* text) {
    return QCoreApplication::translate("MainWindow", text);
}

void setShortcut(QAction& action, const Command::Shortcut& shortcut) {
    if (const auto* standard = std::get_if<QKeySequence::StandardKey>(&shortcut)) {
        action.setShortcuts(*standard);
    } else if (const auto* keys = std::get_if<const char*>(&shortcut)) {
        action.setShortcut(translated(*keys));
    }
}

/**
 * Lets Ctrl+Shift+Tab trigger an action that answers Ctrl+Shift+Backtab. A keyboard on X uses up
 * the Shift in making a Backtab of the Tab, so that no stroke of its keys matches the latter, and
 * the document area would take it for its own selection of documents.
 */
void followShiftedTab(QAction& action, QWidget* window) {
    if (action.shortcuts().contains(Qt::CTRL + Qt::SHIFT + Qt::Key_Backtab)) {
        const auto* shortcut = new QShortcut(Qt::CTRL + Qt::SHIFT + Qt::Key_Tab, window);
        QObject::connect(shortcut, &QShortcut::activated, &action, &QAction::trigger);
    }
}

QAction* createAction(const Command& command, QMainWindow* window, const QObject* receiver) {
    auto* action = new QAction(window);
    action->setObjectName(command.name);
    if (command.isSeparator()) {
        action->setSeparator(true);
        return action;
    }
    action->setText(translated(command.text));
    if (command.statusTip != nullptr) {
        action->setStatusTip(translated(command.statusTip));
    }
    setShortcut(*action, command.shortcut);
    followShiftedTab(*action, window);
    if (command.icon != nullptr) {
        action->setIcon(QIcon(command.icon));
    }
    QObject::connect(action, SIGNAL(triggered()), receiver, command.slot);
    return action;
}

bool holds(CommandCondition condition, bool hasActiveFrame, int frameCount) {
    switch (condition) {
    case CommandCondition::activeFrame:
        return hasActiveFrame;
    case CommandCondition::severalFrames:
        return frameCount >= 2;
    default:
        return true;
    }
}

} // namespace

Commands Commands::create(QMainWindow* window, const QMdiArea* documentArea) {
    const auto receiverOf = [&](const Command& command) -> const QObject* {
        switch (command.receiver) {
        case CommandReceiver::documentArea:
            return documentArea;
        case CommandReceiver::application:
            return qApp;
        default:
            return window;
        }
    };
    Commands commands;
    for (const Command& command : CommandTable::commands()) {
        commands.entries.push_back({&command, createAction(command, window, receiverOf(command))});
    }
    return commands;
}

QMenu* Commands::addMenus(QMenuBar* bar) const {
    QMenu* windowMenu = nullptr;
    for (const auto& [id, title, afterSeparator] : CommandTable::menus()) {
        if (afterSeparator) {
            bar->addSeparator();
        }
        QMenu* menu = bar->addMenu(translated(title));
        for (const Entry& entry : entries) {
            if (entry.command->menu == id) {
                menu->addAction(entry.action);
            }
        }
        if (id == CommandMenu::window) {
            windowMenu = menu;
        }
    }
    return windowMenu;
}

void Commands::updateEnabled(bool hasActiveFrame, int frameCount) const {
    for (const Entry& entry : entries) {
        entry.action->setEnabled(holds(entry.command->condition, hasActiveFrame, frameCount));
    }
}
