#pragma once

#include <string>

/**
 * Sends a window the message by which a window manager asks it to close; false without a
 * connection to the display.
 */
bool askToClose(const std::string& display, unsigned long window);
