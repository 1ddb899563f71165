// SPDX-License-Identifier: MIT
// Lines on stderr, each "zorcc: ..." whatever the text holds.
#pragma once

#include <string>

#include "picture.h"

namespace zorcc::tool {

// Says a line. Takes no memory, so that it works where there is none left.
void say(const char* text);

// Warnings are said once each, and not at all when quiet. May be called on any thread.
void beQuiet();
void warn(const std::string& file, const std::string& text);

// What a picture of one format loses when it becomes another: alpha, or the lower half of 16 bits.
void warnOfLostAlpha(const std::string& file, const Format& from, const Format& to);
void warnOfLostBits(const std::string& file, const Format& from, const Format& to);

} // namespace zorcc::tool
