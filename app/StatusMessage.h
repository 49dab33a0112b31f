#pragma once

#include <QObject>
#include <QString>
#include <optional>

class QMainWindow;

/**
 * The message of a main window's status bar, which outlives the status tips: while a menu is open
 * they take its place, and a command without a tip empties the bar.
 */
class StatusMessage : public QObject {
public:
    /** Watches the window, which lives longer. */
    explicit StatusMessage(QMainWindow& mainWindow);

    /** Shows a text until the next one; with none, what was said before still stands. */
    void say(const std::optional<QString>& text);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QMainWindow& window;
    QString lastText;
};
