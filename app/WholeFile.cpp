#include "app/WholeFile.h"

#include <QFileInfo>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <unistd.h>

namespace {

namespace fs = std::filesystem;

/** As many links in a row as the system follows. */
constexpr int mostLinks = 40;

bool isNoFile(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error) && !fs::is_regular_file(path, error);
}

/** The file that is meant by a name, which may not be there yet; empty when links lead nowhere. */
fs::path behindLinks(fs::path path) {
    std::error_code error;
    for (int i = 0; fs::is_symlink(path, error); ++i) {
        if (i == mostLinks) {
            return {};
        }
        const fs::path target = fs::read_symlink(path, error);
        const fs::path folder =
            error ? fs::path() : fs::canonical(fs::absolute(path, error).parent_path(), error);
        if (error) {
            return {};
        }
        path = folder / target;
    }
    return path;
}

QString systemError() {
    return QString::fromLocal8Bit(std::strerror(errno));
}

/** Some file systems notice only now that they are full; pipes and devices know no such thing. */
bool reachesTheDisk(int handle) {
    return fsync(handle) == 0 || errno == EINVAL || errno == EROFS || errno == ENOTSUP;
}

} // namespace

WholeFile::WholeFile(const QString& fileName)
    : previousHandler(std::signal(SIGPIPE, SIG_IGN))
    , direct(fileName) {
    const fs::path path(QFile::encodeName(fileName).constData());
    // QSaveFile would put a file in a device's place, and in that of the second of two links.
    if (isNoFile(path)) {
        direct.open(QIODevice::WriteOnly);
        return;
    }
    replacement.setFileName(QFile::decodeName(behindLinks(path).c_str()));
    if (!replacement.fileName().isEmpty() && !replacement.open(QIODevice::WriteOnly)) {
        failure = replacement.errorString();
    }
}

WholeFile::~WholeFile() {
    std::signal(SIGPIPE, previousHandler);
}

int WholeFile::handle() const {
    return direct.isOpen() ? direct.handle() : replacement.handle();
}

void WholeFile::write(const char* text, std::size_t size) {
    // Not by way of the toolkit, which takes the half that found room for the whole.
    std::size_t written = 0;
    while (failure.isEmpty() && written < size) {
        const ssize_t count = ::write(handle(), text + written, size - written);
        if (count >= 0) {
            written += static_cast<std::size_t>(count);
        } else if (errno != EINTR) {
            failure = systemError();
        }
    }
}

bool WholeFile::isWritableInPlace() const {
    if (replacement.fileName().isEmpty()) {
        return false;
    }
    const QFileInfo info(replacement.fileName());
    const QFileInfo folder(info.path());
    return info.exists() ? !info.isDir() && info.isWritable()
                         : folder.isDir() && folder.isWritable();
}

bool WholeFile::commit() {
    if (failure.isEmpty() && !reachesTheDisk(handle())) {
        failure = systemError();
    }
    if (failure.isEmpty() && !direct.isOpen() && !replacement.commit()) {
        failure = replacement.errorString();
    }
    return failure.isEmpty();
}
