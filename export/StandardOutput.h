#pragma once

#include "export/ByteTarget.h"

/** Standard output, whatever it leads to. A reader that has gone is a failure, not the end. */
class StandardOutput : public ByteTarget {
public:
    StandardOutput();
    ~StandardOutput() override;
    StandardOutput(const StandardOutput&) = delete;
    StandardOutput& operator=(const StandardOutput&) = delete;

    void write(const char* text, std::size_t size) override;
    bool commit() override { return failure.isEmpty(); }

private:
    void (*previousHandler)(int);
};
