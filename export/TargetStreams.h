#pragma once

#include "export/ByteTarget.h"

#include <cstdio>
#include <memory>
#include <streambuf>

/** Lets a C++ stream write to a target, which remembers its first failure. */
class TargetBuffer : public std::streambuf {
public:
    explicit TargetBuffer(ByteTarget& byteTarget)
        : target(byteTarget) {}

protected:
    std::streamsize xsputn(const char* text, std::streamsize count) override;

private:
    ByteTarget& target;
};

using CStream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

/** A C stream that writes to a target, which remembers its first failure; null without memory. */
CStream cStreamTo(ByteTarget& target);
