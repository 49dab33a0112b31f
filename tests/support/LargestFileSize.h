#pragma once

#include <csignal>
#include <sys/resource.h>

/** As long as it lives, no file can grow larger than so many bytes: like a disk that gets full. */
class LargestFileSize {
public:
    explicit LargestFileSize(rlim_t bytes)
        : previousHandler(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &previous);
        const rlimit limited{bytes, previous.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~LargestFileSize() {
        setrlimit(RLIMIT_FSIZE, &previous);
        std::signal(SIGXFSZ, previousHandler);
    }
    LargestFileSize(const LargestFileSize&) = delete;
    LargestFileSize& operator=(const LargestFileSize&) = delete;

private:
    rlimit previous{};
    void (*previousHandler)(int);
};
