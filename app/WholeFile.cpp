#include "app/WholeFile.h"

#include <QFile>
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

/**
 * The file that is meant by a name: QSaveFile would replace the second of two links in a row. What
 * is no file keeps its name. Empty when links lead nowhere.
 */
fs::path behindLinks(fs::path path) {
    std::error_code error;
    if (fs::exists(path, error) && !fs::is_regular_file(path, error)) {
        return path;
    }
    for (int i = 0; fs::is_symlink(path, error); ++i) {
        if (i == mostLinks) {
            return {};
        }
        const fs::path folder = fs::canonical(fs::absolute(path).parent_path(), error);
        path = folder / fs::read_symlink(path, error);
    }
    return path;
}

QString behindLinks(const QString& fileName) {
    const fs::path path(QFile::encodeName(fileName).constData());
    return QFile::decodeName(behindLinks(path).c_str());
}

/** Some file systems notice only now that they are full; pipes and devices know no such thing. */
bool reachesTheDisk(int handle) {
    return fsync(handle) == 0 || errno == EINVAL || errno == EROFS || errno == ENOTSUP;
}

} // namespace

WholeFile::WholeFile(const QString& fileName)
    : previousHandler(std::signal(SIGPIPE, SIG_IGN))
    , file(behindLinks(fileName)) {
    if (!file.fileName().isEmpty() && !file.open(QIODevice::WriteOnly)) {
        failure = file.errorString();
    }
}

WholeFile::~WholeFile() {
    discard();
    std::signal(SIGPIPE, previousHandler);
}

bool WholeFile::isWritableInPlace() const {
    const QFileInfo info(file.fileName());
    const QFileInfo folder(info.path());
    return info.exists() ? !info.isDir() && info.isWritable()
                         : folder.isDir() && folder.isWritable();
}

bool WholeFile::commit() {
    // QSaveFile forgets the errors of what it writes to directly.
    if (!file.flush() || file.error() != QFileDevice::NoError) {
        failure = file.errorString();
    } else if (!reachesTheDisk(file.handle())) {
        failure = QString::fromLocal8Bit(std::strerror(errno));
    } else if (!file.commit()) {
        failure = file.errorString();
    }
    discard();
    return failure.isEmpty();
}

void WholeFile::discard() {
    if (file.isOpen()) {
        // Without commit() the destructor removes what was written to directly: a device.
        file.cancelWriting();
        file.commit();
    }
}
