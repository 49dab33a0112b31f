#pragma once

#include "export/ByteTarget.h"

#include <QFile>
#include <QSaveFile>
#include <filesystem>
#include <system_error>

/**
 * A file that comes into being whole or not at all: what is written goes beside it first, and an
 * older file stays untouched until commit(). Symbolic links are followed and stay; what is no file,
 * such as a device or a pipe, is written to directly.
 */
class WholeFile : public ByteTarget {
public:
    /**
     * The file that is meant by a name, which may not be there yet: the one behind all links.
     *
     * @param error why there is none: the links lead nowhere, or there is no name
     */
    static std::filesystem::path behindLinks(std::filesystem::path path, std::error_code& error);

    /** Opens a file for writing. */
    explicit WholeFile(const QString& fileName);

    bool isOpen() const { return direct.isOpen() || replacement.isOpen(); }

    /**
     * Whether a file that could not be opened could have been, had it been written in place: the
     * folder refuses to take a second file, say.
     */
    bool isWritableInPlace() const;

    void write(const char* text, std::size_t size) override;

    /** Gives the file its name; false when it could not be written wholly, and nothing changed. */
    bool commit() override;

private:
    /** Opens the file that will take the target's place. */
    void openBeside(const std::filesystem::path& target);
    int handle() const;

    /** What is no file, open in place of the replacement. */
    QFile direct;
    QSaveFile replacement;
};
