#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>

/** All that a file holds; "absent" when it cannot be read. */
inline QByteArray contentOf(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("absent");
}
