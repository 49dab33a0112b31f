#pragma once

#include <QObject>

class OpenedWindow;

/** What holds whenever the user's last action has been carried out. */
class Invariants {
public:
    explicit Invariants(const OpenedWindow& openedWindow);

    /** Expects all of it, as far as what is on the screen and in the models can tell. */
    void check() const;

private:
    void checkMenus() const;

    const OpenedWindow& opened;
    /**
     * Whether the document area has last told that a document is active. It need not still be: when
     * the window itself loses the focus, the area may let its document go without a word.
     */
    bool documentActive;
    QObject life;
};
