#include "export/TargetStreams.h"

#include <sys/types.h>

namespace {

ssize_t writeToTarget(void* cookie, const char* text, std::size_t size) {
    auto& target = *static_cast<ByteTarget*>(cookie);
    target.write(text, size);
    return target.errorString().isEmpty() ? static_cast<ssize_t>(size) : 0;
}

} // namespace

std::streamsize TargetBuffer::xsputn(const char* text, std::streamsize count) {
    target.write(text, static_cast<std::size_t>(count));
    return count;
}

CStream cStreamTo(ByteTarget& target) {
    cookie_io_functions_t functions{};
    functions.write = writeToTarget;
    return {fopencookie(&target, "w", functions), std::fclose};
}
