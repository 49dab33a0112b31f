#pragma once

class QWidget;

/** Where the main window was when it was closed: the settings "pos" and "size". */
namespace WindowPlace {

/**
 * Moves and resizes a window as the settings say. A place that cannot be read is (200, 200), a size
 * that cannot be read or is none is 400 x 400.
 */
void restore(QWidget& window);

/** Stores a window's position and size. */
void store(const QWidget& window);

} // namespace WindowPlace
