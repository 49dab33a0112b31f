#include "tests/program/RunningViewer.h"

#include "tests/support/ScreenPicture.h"
#include "tests/support/WindowMessages.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QThread>
#include <csignal>
#include <utility>

namespace {

constexpr int patience = 30000;
/** Time between two looks at the screen, in milliseconds. */
constexpr int lookInterval = 100;
constexpr const char* mainWindowTitle = "Visualisation of Torvane";
constexpr int menuBarHeight = 22;
constexpr int statusBarHeight = 22;

bool isSaturated(QRgb pixel) {
    const QColor color(pixel);
    constexpr int strong = 150;
    constexpr int bright = 100;
    return color.hsvSaturation() > strong && color.value() > bright;
}

int saturatedPixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += isSaturated(image.pixel(x, y)) ? 1 : 0;
        }
    }
    return count;
}

} // namespace

RunningViewer::RunningViewer(QSize windowSize)
    : RunningViewer(qEnvironmentVariable("DISPLAY"), windowSize) {}

RunningViewer::RunningViewer(QString otherDisplay, QSize windowSize)
    : display(std::move(otherDisplay))
    , size(windowSize) {
    QDir(home.path()).mkpath("Trolltech");
    QFile settings(home.filePath("Trolltech/MDI Viewer.conf"));
    settings.open(QIODevice::WriteOnly);
    settings.write(QString("[General]\npos=@Point(0 0)\nsize=@Size(%1 %2)\n")
                       .arg(size.width())
                       .arg(size.height())
                       .toUtf8());
    settings.close();
    start();
}

RunningViewer::RunningViewer(QString otherDisplay)
    : display(std::move(otherDisplay)) {
    start();
}

RunningViewer::~RunningViewer() {
    if (process.state() != QProcess::NotRunning) {
        process.kill();
        process.waitForFinished();
    }
}

void RunningViewer::start() {
    QProcessEnvironment environment = environmentOn(display);
    environment.insert("XDG_CONFIG_HOME", home.path());
    environment.insert("XDG_RUNTIME_DIR", home.path());
    process.setProcessEnvironment(environment);
    process.start(TORVANE_PROGRAM, QStringList());
    process.waitForStarted();
}

QProcessEnvironment RunningViewer::environmentOn(const QString& display) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", display);
    return environment;
}

QRect RunningViewer::quarter(int column, int row) const {
    const QSize half(size.width() / 2, (size.height() - menuBarHeight - statusBarHeight) / 2);
    // The drawn part of a view lies within its frame's title, wheels and buttons.
    constexpr QMargins decoration(36, 26, 36, 40);
    return QRect(QPoint(column * half.width(), menuBarHeight + row * half.height()), half)
        .marginsRemoved(decoration);
}

QRect RunningViewer::statusBar() const {
    return {0, size.height() - statusBarHeight, size.width(), statusBarHeight};
}

std::optional<QString> RunningViewer::xdotool(const QStringList& arguments) const {
    QProcess tool;
    tool.setProcessEnvironment(environmentOn(display));
    tool.start("xdotool", arguments);
    if (!tool.waitForFinished() || tool.exitCode() != 0) {
        return std::nullopt;
    }
    return tool.readAllStandardOutput();
}

bool RunningViewer::waitUntil(const std::function<bool()>& condition) {
    QElapsedTimer timer;
    timer.start();
    while (!condition()) {
        if (timer.elapsed() > patience) {
            return false;
        }
        QThread::msleep(lookInterval);
    }
    return true;
}

bool RunningViewer::waitForWindowFoundBy(const QStringList& criterion) const {
    return waitUntil([&] {
        return xdotool(QStringList{"search", "--onlyvisible"} + criterion).has_value();
    });
}

QString RunningViewer::windowId() const {
    return xdotool({"search", "--name", mainWindowTitle}).value_or(QString()).trimmed();
}

bool RunningViewer::waitForWindow() const {
    return waitForWindowFoundBy({"--name", mainWindowTitle});
}

bool RunningViewer::waitForAnyWindow() const {
    return waitForWindowFoundBy({"--class", "torvane"});
}

bool RunningViewer::waitUntilColoured(const QRect& part) const {
    constexpr int enough = 100;
    return waitUntil([&] { return saturatedPixels(screen(part)) > enough; });
}

bool RunningViewer::waitUntilAllViewsAreDrawn() const {
    return waitForWindow() && waitUntilColoured(uView()) && waitUntilColoured(xView()) &&
           waitUntilColoured(mView()) && waitUntilColoured(helixView());
}

void RunningViewer::click(int button, QPoint position) const {
    xdotool({"mousemove", QString::number(position.x()), QString::number(position.y()), "click",
             QString::number(button)});
}

void RunningViewer::key(const QString& name) const {
    xdotool({"key", name});
}

QImage RunningViewer::screen() const {
    return screenPicture(display.toStdString());
}

bool RunningViewer::waitUntilChanged(const QRect& part, const QImage& before) const {
    return waitUntilChanged(std::vector<QRect>{part}, std::vector<QImage>{before});
}

bool RunningViewer::waitUntilChanged(const std::vector<QRect>& parts,
                                     const std::vector<QImage>& before) const {
    std::vector<QImage> last;
    return waitUntil([&] {
        const QImage seen = screen();
        std::vector<QImage> now;
        bool haveChanged = true;
        for (std::size_t i = 0; i < parts.size(); ++i) {
            now.push_back(seen.copy(parts[i]));
            haveChanged = haveChanged && now[i] != before[i];
        }
        const bool areAtRest = now == last;
        last = std::move(now);
        return areAtRest && haveChanged;
    });
}

bool RunningViewer::waitUntilLike(const QRect& part, const QImage& picture) const {
    return waitUntil([&] { return screen(part) == picture; });
}

bool RunningViewer::waitUntilUnlike(const QRect& part, const QImage& picture) const {
    return waitUntil([&] { return screen(part) != picture; });
}

QPoint RunningViewer::surfaceIn(const QRect& view) const {
    const QImage image = screen(view);
    for (int y = image.height() / 3; y < image.height(); y += 3) {
        for (int x = image.width() / 3; x < image.width(); x += 3) {
            const QRect around(x - 3, y - 3, 7, 7);
            if (saturatedPixels(image.copy(around)) == around.width() * around.height()) {
                return view.topLeft() + QPoint(x, y);
            }
        }
    }
    return {};
}

qint64 RunningViewer::waits() const {
    QFile status(QString("/proc/%1/task/%1/status").arg(process.processId()));
    status.open(QIODevice::ReadOnly);
    const QString label = "\nvoluntary_ctxt_switches:";
    return QString(status.readAll()).section(label, 1).section('\n', 0, 0).toLongLong();
}

bool RunningViewer::waitUntilAtRest() const {
    constexpr unsigned long second = 1000;
    return waitUntil([&] {
        const qint64 before = waits();
        QThread::msleep(second);
        return waits() == before;
    });
}

bool RunningViewer::closeBeforeItIsShown() const {
    return waitUntil([&] {
        const std::optional<QString> window = xdotool({"search", "--name", mainWindowTitle});
        return window && askToClose(display.toStdString(), window->trimmed().toULong());
    });
}

void RunningViewer::send(int number) const {
    kill(static_cast<pid_t>(process.processId()), number);
}

bool RunningViewer::waitForEnd() {
    return process.state() == QProcess::NotRunning || process.waitForFinished(patience);
}

bool RunningViewer::keyUntilEnd(const QString& name) {
    return waitUntil([&] {
        key(name);
        return process.waitForFinished(lookInterval);
    });
}

QString RunningViewer::errors() {
    return process.readAllStandardError();
}

QString RunningViewer::storedSettings() const {
    QFile settings(home.filePath("Trolltech/MDI Viewer.conf"));
    settings.open(QIODevice::ReadOnly);
    return settings.readAll();
}
