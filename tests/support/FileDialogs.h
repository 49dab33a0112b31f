#pragma once

#include <QFileDialog>
#include <QLineEdit>
#include <QTest>

/** A user in front of a file dialog. */
namespace FileDialogs {

/** Types a path and presses the save button. */
inline void saveAs(QFileDialog& dialog, const QString& path) {
    auto* name = dialog.findChild<QLineEdit*>();
    name->setText(path);
    QTest::keyClick(name, Qt::Key_Return);
}

} // namespace FileDialogs
