#pragma once

#include <QImage>
#include <QProcess>
#include <QRect>
#include <QTemporaryDir>
#include <functional>
#include <optional>
#include <vector>

/** The real program on the display, driven from outside: by xdotool, seen by screenshots. */
class RunningViewer {
public:
    /** Starts the program with its window at the screen's corner, all four views tiled. */
    explicit RunningViewer(QSize size = QSize(1000, 800));
    /** Starts the program on another display, without stored settings. */
    explicit RunningViewer(QString display);
    /** Starts the program on another display, its window of this size. */
    RunningViewer(QString display, QSize size);
    ~RunningViewer();
    RunningViewer(const RunningViewer&) = delete;
    RunningViewer& operator=(const RunningViewer&) = delete;

    /** This process's environment with another display. */
    static QProcessEnvironment environmentOn(const QString& display);

    // Where the four views are on the screen, after tiling.
    QRect helixView() const { return quarter(0, 0); }
    QRect mView() const { return quarter(1, 0); }
    QRect xView() const { return quarter(0, 1); }
    QRect uView() const { return quarter(1, 1); }
    QRect statusBar() const;

    /** The identifier of the main window, as the window system and xdotool know it. */
    QString windowId() const;

    /** Looks at something again and again until it holds; false when it does not in time. */
    static bool waitUntil(const std::function<bool()>& condition);

    /** Waits until the main window is on the screen. */
    bool waitForWindow() const;
    /** Waits until any window of the program is on the screen: the splash comes first. */
    bool waitForAnyWindow() const;
    bool waitUntilAllViewsAreDrawn() const;
    /** Waits until a part of the screen shows strong colours, as surfaces and helices have. */
    bool waitUntilColoured(const QRect& part) const;

    /** Runs xdotool with arguments on the program's display; what it prints, or nothing when it
        fails. */
    std::optional<QString> xdotool(const QStringList& arguments) const;
    void click(int button, QPoint position) const;
    void key(const QString& name) const;

    QImage screen() const;
    QImage screen(const QRect& part) const { return screen().copy(part); }
    /** Waits until a part of the screen differs from a picture and is at rest. */
    bool waitUntilChanged(const QRect& part, const QImage& before) const;
    /** The same of several parts, and at once. */
    bool waitUntilChanged(const std::vector<QRect>& parts, const std::vector<QImage>& before) const;
    /** Waits until a part of the screen differs from a picture, moving or not. */
    bool waitUntilUnlike(const QRect& part, const QImage& picture) const;
    /** Waits until a part of the screen is like a picture again. */
    bool waitUntilLike(const QRect& part, const QImage& picture) const;

    /** A place in a view where the surface is seen: a saturated pixel near the middle. */
    QPoint surfaceIn(const QRect& view) const;

    /** How often the thread that handles events has begun to wait since the start. */
    qint64 waits() const;
    /** Waits until the thread that handles events has slept for a second. */
    bool waitUntilAtRest() const;

    /** Asks the main window to close as soon as it exists, before it is on the screen. */
    bool closeBeforeItIsShown() const;
    void terminate() { process.terminate(); }
    /** Sends the program a signal by its number. */
    void send(int number) const;
    bool waitForEnd();
    /** Strikes a key until the program has ended: a window manager may miss the first stroke, as
        it takes its keys anew when a keyboard is used for the first time. */
    bool keyUntilEnd(const QString& name);
    int exitCode() const { return process.exitCode(); }
    bool crashed() const { return process.exitStatus() != QProcess::NormalExit; }
    /** What the program has written to standard error. */
    QString errors();
    /** The text of the settings file, empty when there is none. */
    QString storedSettings() const;

private:
    QRect quarter(int column, int row) const;
    void start();
    bool waitForWindowFoundBy(const QStringList& criterion) const;

    QTemporaryDir home;
    QString display;
    QSize size;
    QProcess process;
};
