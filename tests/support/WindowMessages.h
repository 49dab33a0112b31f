#pragma once

#include <string>

/**
 * Sends a window the message by which a window manager asks it to close; false without a
 * connection to the display.
 */
bool askToClose(const std::string& display, unsigned long window);

/**
 * Moves a window within the one around it and gives it a size, without asking its program; false
 * without a connection to the display.
 */
bool placeWindow(const std::string& display, unsigned long window, int x, int y, int width,
                 int height);
