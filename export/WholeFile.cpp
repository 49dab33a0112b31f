#include "export/WholeFile.h"

#include <QFileInfo>
#include <cerrno>
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

/** Some file systems notice only now that they are full; pipes and devices know no such thing. */
bool reachesTheDisk(int handle) {
    int result = 0;
    do {
        result = fsync(handle);
    } while (result != 0 && errno == EINTR);
    return result == 0 || errno == EINVAL || errno == EROFS || errno == ENOTSUP;
}

} // namespace

fs::path WholeFile::behindLinks(fs::path path, std::error_code& error) {
    for (int i = 0; fs::is_symlink(path, error); ++i) {
        if (i == mostLinks) {
            error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
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
    error = path.empty() ? std::make_error_code(std::errc::no_such_file_or_directory)
                         : std::error_code();
    return path;
}

WholeFile::WholeFile(const QString& fileName)
    : direct(fileName) {
    const fs::path path(QFile::encodeName(fileName).constData());
    std::error_code error;
    // QSaveFile would put a file in a device's place, and in that of the second of two links.
    if (isNoFile(path)) {
        if (!direct.open(QIODevice::WriteOnly)) {
            failure = direct.errorString();
        }
    } else if (const fs::path target = behindLinks(path, error); error) {
        failure = QString::fromLocal8Bit(error.message().c_str());
    } else {
        openBeside(target);
    }
}

void WholeFile::openBeside(const std::filesystem::path& target) {
    replacement.setFileName(QFile::decodeName(target.c_str()));
    if (!replacement.open(QIODevice::WriteOnly)) {
        // Of a file that must not be written the toolkit has words of its own.
        const bool isRefused = access(target.c_str(), W_OK) != 0 && errno != ENOENT;
        failure = isRefused ? systemError() : replacement.errorString();
    }
}

int WholeFile::handle() const {
    return direct.isOpen() ? direct.handle() : replacement.handle();
}

void WholeFile::write(const char* text, std::size_t size) {
    writeTo(handle(), text, size);
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
