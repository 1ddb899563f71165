// SPDX-License-Identifier: MIT
#include "messages.h"

#include <cstdio>
#include <cstring>
#include <mutex>
#include <set>

#include "formats.h"

namespace zorcc::tool {

namespace {

std::mutex mutex;
bool quiet = false;

bool hasWords(const Format& format) { return format.sample == Sample::u16 || format.sample == Sample::s16; }
bool hasBytes(const Format& format) { return format.sample == Sample::u8 || format.sample == Sample::s8; }

} // namespace

void say(const char* text) { std::fprintf(stderr, "zorcc: %.*s\n", static_cast<int>(std::strcspn(text, "\n")), text); }

void beQuiet() { quiet = true; }

void warn(const std::string& file, const std::string& text)
{
    static std::set<std::string> said;
    const std::string line = "warning: " + file + ": " + text;
    const std::lock_guard lock(mutex);
    if (!quiet && said.insert(line).second) say(line.c_str());
}

void warnOfLostAlpha(const std::string& file, const Format& from, const Format& to)
{
    if (hasAlpha(from) && !hasAlpha(to)) warn(file, "alpha is dropped");
}

void warnOfLostBits(const std::string& file, const Format& from, const Format& to)
{
    // Packed 16-bit pixels have fewer bits than bytes have; YCoCg needs more than its RGB.
    if (hasWords(from) && hasBytes(to) && from.fieldBits == 0 && !isYCoCg(from))
        warn(file, "samples of 16 bits become samples of 8");
}

} // namespace zorcc::tool
