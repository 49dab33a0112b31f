#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>

/** A disk of a few kilobytes in a folder, as long as it lives. Only a privileged user may have one.
 */
class SmallDisk {
public:
    SmallDisk(const QString& folder, int kilobytes)
        : path(folder.toLocal8Bit())
        , mounted(mount("tmpfs", path.constData(), "tmpfs", 0,
                        ("size=" + QByteArray::number(kilobytes) + "k").constData()) == 0) {}
    ~SmallDisk() {
        if (mounted) {
            umount(path.constData());
        }
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool isThere() const { return mounted; }

private:
    QByteArray path;
    bool mounted;
};

/**
 * The path of a device that is always full: one of the folder's own, lest a program that replaces
 * devices take the system's; who may not make devices may not replace them either.
 */
inline QString fullDevice(const QString& folder) {
    const QString path = QDir(folder).filePath("full");
    const bool made = mknod(path.toLocal8Bit().constData(), S_IFCHR | 0666, makedev(1, 7)) == 0;
    QFile device(path);
    const bool opens = made && device.open(QIODevice::WriteOnly);
    return opens ? path : "/dev/full";
}
