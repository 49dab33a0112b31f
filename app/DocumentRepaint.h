#pragma once

#include <QObject>

/**
 * Has a document painted wholly after the window system has placed it otherwise than the toolkit.
 *
 * Each widget around a view is a window of its own to the window system, which reports afterwards
 * where it has put it. A late report about an earlier place, as may come while the program starts,
 * has the document laid out and painted there once more. With the next report it is back; but then
 * the window system keeps what was painted, and the toolkit paints only what has been added.
 */
class DocumentRepaint : public QObject {
public:
    /** Looks after a document and all that is in it now; the document owns this. */
    explicit DocumentRepaint(QWidget* watchedDocument);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* document;
};
