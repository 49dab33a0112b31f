#pragma once

#include <QObject>
#include <QString>

/**
 * Keeps a window's title over calls of SoQt's, which takes the top-level window around an embedded
 * viewer for the viewer's own shell and renames it.
 *
 * While the keeper lives, the window does not hear of its title changing: a maximised document
 * would otherwise take SoQt's title for the main window's own and append to it.
 */
class WindowTitleKeeper : public QObject {
public:
    /** The window must outlive the keeper. */
    explicit WindowTitleKeeper(QWidget* renamedWindow);
    ~WindowTitleKeeper() override;
    WindowTitleKeeper(const WindowTitleKeeper&) = delete;
    WindowTitleKeeper& operator=(const WindowTitleKeeper&) = delete;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* window;
    QString title;
};
