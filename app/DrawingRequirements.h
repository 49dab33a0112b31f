#pragma once

#include <QString>

/** What the program needs of the machine to show anything, and what to install for it. */
namespace DrawingRequirements {

/**
 * Lets an application object that cannot be made, for want of a window system, say on standard
 * error what is missing and end the program with the exit code 1 instead of aborting it.
 */
void explainFailedStart();

/**
 * What keeps OpenGL from drawing, and what to install; empty when nothing does.
 *
 * The application object must exist and its library paths must be set.
 */
QString missing();

} // namespace DrawingRequirements
