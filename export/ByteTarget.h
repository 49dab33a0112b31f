#pragma once

#include <QString>
#include <cstddef>

/**
 * Where the bytes of an export go. It remembers its first failure; after one nothing is written. A
 * pipe whose reader has gone is such a failure, and does not end the program as long as this object
 * lives.
 */
class ByteTarget {
public:
    ByteTarget();
    virtual ~ByteTarget();
    ByteTarget(const ByteTarget&) = delete;
    ByteTarget& operator=(const ByteTarget&) = delete;

    /** Writes more of the content. */
    virtual void write(const char* text, std::size_t size) = 0;

    /** Makes what was written count; false when it could not be written wholly. */
    virtual bool commit() = 0;

    /** In the system's words, why something failed; empty as long as all is well. */
    QString errorString() const { return failure; }

protected:
    /** What the system's last call failed with, in words. */
    static QString systemError();

    /** Writes to an open file, however many pieces the system takes it in. */
    void writeTo(int handle, const char* text, std::size_t size);

    QString failure;

private:
    void (*previousHandler)(int);
};
