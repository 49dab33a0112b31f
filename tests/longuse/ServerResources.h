#pragma once

#include <map>
#include <string>

/**
 * What this process holds in the X server, by kind: how many "WINDOW", "GLXContext", "PIXMAP" and
 * so on, as the server itself counts them.
 */
std::map<std::string, unsigned int> countServerResources();
