#pragma once

#include <fstream>
#include <unistd.h>

/** What this process holds in memory, in bytes. */
inline long residentBytes() {
    long pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    return pages * sysconf(_SC_PAGESIZE);
}
