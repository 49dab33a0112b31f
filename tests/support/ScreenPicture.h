#pragma once

#include <QImage>
#include <string>

/** What is seen on a display now; null without a connection to it. */
QImage screenPicture(const std::string& display);
