#pragma once

#include <QString>

class QWidget;

/** Every message box and file dialog of the program is opened here. */
namespace Messages {

/** Says that the command needs a helix frame to be active; returns when the box is closed. */
void selectHelixViewer();

/** Shows the picture of a condition that the parameters break; returns when the box is closed. */
void brokenCondition(const char* picturePath, QWidget* parent);

/** Says what the program is; returns when the box is closed. */
void about(QWidget* parent);

/** Says, on standard error too, why the program cannot start; returns when the box is closed. */
void cannotStart(const QString& reason);

/** Shows a warning; returns when the box is closed. */
void warn(const QString& text, QWidget* parent);

/**
 * Asks where to save a file.
 *
 * @param nameFilter the kind of file, for example "Text (*.txt)"
 * @param suffix     appended to a name without one
 * @return the chosen path, empty when the user gave up
 */
QString askForFileToSave(const QString& nameFilter, const QString& suffix, QWidget* parent);

} // namespace Messages
