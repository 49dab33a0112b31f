#pragma once

#include <QObject>

class QStatusBar;

/**
 * Keeps the permanent widgets of a status bar off its message, up to a third of the bar: they would
 * take all the room that they can use, and hide it.
 */
class MessageRoom : public QObject {
    Q_OBJECT

public:
    /** Belongs to the bar, whose least width it sets: that is not to hold for the window. */
    explicit MessageRoom(QStatusBar& statusBar);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void update();

    QStatusBar& bar;
};
