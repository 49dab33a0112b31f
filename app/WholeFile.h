#pragma once

#include <QSaveFile>
#include <QString>

/**
 * A file that comes into being whole or not at all: what is written goes beside it first, and an
 * older file stays untouched until commit(). Symbolic links are followed and stay; what is no file,
 * such as a device or a pipe, is written to directly. A pipe whose reader has gone fails to be
 * written and does not end the program as long as this object lives.
 */
class WholeFile {
public:
    /** Opens a file for writing. */
    explicit WholeFile(const QString& fileName);
    ~WholeFile();
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    bool isOpen() const { return file.isOpen(); }

    /**
     * Whether a file that could not be opened could have been, had it been written in place: the
     * folder refuses to take a second file, say.
     */
    bool isWritableInPlace() const;

    /** Where to write to. Half of what is written may still be in its buffer. */
    QFileDevice& device() { return file; }

    /** Gives the file its name; false when it could not be written wholly, and nothing changed. */
    bool commit();

    /** In words, why the file could not be opened, or committed. */
    QString errorString() const { return failure; }

private:
    /** Leaves no trace. */
    void discard();

    void (*previousHandler)(int);
    QSaveFile file;
    QString failure;
};
