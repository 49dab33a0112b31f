#include "batch/DrawingContexts.h"

#include "viewer/OffscreenContexts.h"
#include "viewer/SurfacelessContexts.h"
#include "viewer/WindowSystem.h"

#include <Inventor/C/glue/gl.h>
#include <Inventor/errors/SoDebugError.h>
#include <QGuiApplication>
#include <X11/Xlib.h>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

SoErrorCB* nextHandler = nullptr;
void* nextHandlerData = nullptr;

/**
 * The scene library asks GLX whether a context is direct and how fine the screen is, and complains
 * where there is no X server, although neither is used.
 */
void passOnAllButGlx(const SoError* error, void* /*data*/) {
    const std::string_view text = error->getDebugString().getString();
    const bool isOfGlx = text.find("glxglue_isdirect") != std::string_view::npos ||
                         text.find("SoOffscreenGLXData") != std::string_view::npos;
    if (!isOfGlx) {
        nextHandler(error, nextHandlerData);
    }
}

void silenceGlx() {
    if (nextHandler == nullptr) {
        nextHandler = SoDebugError::getHandlerCallback();
        nextHandlerData = SoDebugError::getHandlerData();
        SoDebugError::setHandlerCallback(passOnAllButGlx, nullptr);
    }
}

/** What a variable of the environment says; nothing where it is not set. */
std::string variable(const char* name) {
    const char* const value = std::getenv(name);
    return value == nullptr ? "" : value;
}

/** The folder that Mesa keeps shaders in from one start to the next; empty when nothing names one.
 */
fs::path cacheFolder() {
    if (fs::path cache = variable("XDG_CACHE_HOME"); !cache.empty()) {
        return cache;
    }
    const fs::path home = variable("HOME");
    return home.empty() ? home : home / ".cache";
}

/** Mesa complains where it cannot keep shaders, and draws all the same. */
void doWithoutCacheWhereThereIsNone() {
    const fs::path folder = cacheFolder();
    std::error_code error;
    if (!folder.empty()) {
        fs::create_directories(folder, error);
    }
    if (error || access(folder.c_str(), W_OK) != 0) {
        constexpr int keepTheUsers = 0;
        setenv("MESA_SHADER_CACHE_DISABLE", "true", keepTheUsers);
    }
}

/** The toolkit would end the program where there is no display. */
bool isDisplayThere() {
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) {
        return false;
    }
    XCloseDisplay(display);
    return true;
}

/** Whether contexts can be had is known only when one is tried. */
bool areContextsThere() {
    void* const context = cc_glglue_context_create_offscreen(1, 1);
    if (context == nullptr) {
        return false;
    }
    cc_glglue_context_destruct(context);
    return true;
}

/** As long as it lives, the toolkit's warnings are not told: what they come to is told instead. */
class QuietToolkit {
public:
    QuietToolkit()
        : previous(qInstallMessageHandler(tellLastWords)) {}
    ~QuietToolkit() { qInstallMessageHandler(previous); }
    QuietToolkit(const QuietToolkit&) = delete;
    QuietToolkit& operator=(const QuietToolkit&) = delete;

private:
    /** A message after which the toolkit ends the program must be heard. */
    static void tellLastWords(QtMsgType type, const QMessageLogContext& /*where*/,
                              const QString& text) {
        if (type == QtFatalMsg) {
            std::cerr << text.toLocal8Bit().constData() << std::endl;
        }
    }

    QtMessageHandler previous;
};

} // namespace

DrawingContexts::DrawingContexts() = default;

DrawingContexts::~DrawingContexts() = default;

std::string DrawingContexts::open() {
    doWithoutCacheWhereThereIsNone();
    const std::string reason = SurfacelessContexts::install();
    if (reason.empty()) {
        silenceGlx();
        return {};
    }
    const std::string displayReason = openDisplay();
    if (displayReason.empty()) {
        std::cerr << "There is no OpenGL without a display (EGL, platform surfaceless: " << reason
                  << "); the display is used.\n";
        return {};
    }
    return "there is no OpenGL, neither without a display (EGL, platform surfaceless: " + reason +
           ") nor on one (" + displayReason + "); install libegl1 and libgl1-mesa-dri";
}

std::string DrawingContexts::openDisplay() {
    const std::string named = variable("DISPLAY");
    if (named.empty()) {
        return "DISPLAY names none";
    }
    const std::string display = "the display " + named;
    if (!isDisplayThere()) {
        return display + " cannot be reached";
    }
    const QuietToolkit quiet;
    WindowSystem::prepareEnvironment();
    static int argumentCount = 1;
    static char name[] = "torvane-batch";
    static char* arguments[] = {name, nullptr};
    application = std::make_unique<QGuiApplication>(argumentCount, arguments);
    WindowSystem::setPlugInPath();
    // The application object takes over the user's locale; files keep their decimal point.
    std::setlocale(LC_NUMERIC, "C");
    OffscreenContexts::install();
    return areContextsThere() ? std::string() : display + " has no OpenGL";
}
