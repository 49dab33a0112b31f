#pragma once

#include "export/ByteTarget.h"

/** Standard output, whatever it leads to. */
class StandardOutput : public ByteTarget {
public:
    void write(const char* text, std::size_t size) override;
    bool commit() override { return failure.isEmpty(); }
};
