// SPDX-License-Identifier: MIT
// Lines on stderr, each "zorcc: ..." whatever the text holds.
#pragma once

#include <string>

namespace zorcc::tool {

// Prints a line. Allocates nothing, so that it works when memory has run out.
void say(const char* text);

// Each warning is printed once, and none after beQuiet(). May be called on any thread.
void beQuiet();
void warn(const std::string& file, const std::string& text);

// A warning for each line.
void warnOfLosses(const std::string& file, const std::string& lines);

} // namespace zorcc::tool
