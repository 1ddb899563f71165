// SPDX-License-Identifier: MIT
#include "messages.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <mutex>
#include <set>

namespace zorcc::tool {

namespace {

std::mutex mutex;
bool quiet = false;

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

void warnOfLosses(const std::string& file, const std::string& lines)
{
    for (std::size_t start = 0; start < lines.size();) {
        const std::size_t end = std::min(lines.find('\n', start), lines.size());
        warn(file, lines.substr(start, end - start));
        start = end + 1;
    }
}

} // namespace zorcc::tool
