#include "export/ByteTarget.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <unistd.h>

ByteTarget::ByteTarget()
    : previousHandler(std::signal(SIGPIPE, SIG_IGN)) {}

ByteTarget::~ByteTarget() {
    std::signal(SIGPIPE, previousHandler);
}

QString ByteTarget::systemError() {
    return QString::fromLocal8Bit(std::strerror(errno));
}

void ByteTarget::writeTo(int handle, const char* text, std::size_t size) {
    // Not by way of the toolkit, which takes the half that found room for the whole.
    std::size_t written = 0;
    while (failure.isEmpty() && written < size) {
        const ssize_t count = ::write(handle, text + written, size - written);
        if (count == 0) {
            // A device that takes nothing would be asked for ever.
            errno = EIO;
        }
        if (count > 0) {
            written += static_cast<std::size_t>(count);
        } else if (errno != EINTR) {
            failure = systemError();
        }
    }
}
