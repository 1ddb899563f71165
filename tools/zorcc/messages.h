// SPDX-License-Identifier: MIT
// Lines on stderr, each "zorcc: ..." whatever the text holds.
#pragma once

#include <string>

namespace zorcc::tool {

// Says a line. Takes no memory, so that it works where there is none left.
void say(const char* text);

// Warnings are said once each, and not at all when quiet. May be called on any thread.
void beQuiet();
void warn(const std::string& file, const std::string& text);

// A warning for each line.
void warnOfLosses(const std::string& file, const std::string& lines);

} // namespace zorcc::tool
