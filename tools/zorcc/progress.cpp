// SPDX-License-Identifier: MIT
#include "progress.h"

#include <unistd.h>

#include <cstdio>

namespace zorcc::tool {

using Clock = std::chrono::steady_clock;

Progress::Progress(const Reader& reader) : from(reader), terminal(isatty(STDERR_FILENO) == 1), last(Clock::now()) {}

Progress::~Progress()
{
    if (shown) std::fputs("\r\x1b[K", stderr);
}

void Progress::update()
{
    const Clock::time_point now = Clock::now();
    if (!terminal || now - last < std::chrono::milliseconds(100)) return;
    last = now;
    shown = true;
    std::fprintf(stderr, "\r\x1b[K%s: %d pictures", from.path().c_str(), from.count());
    if (const auto share = from.progress()) std::fprintf(stderr, ", %.0f %%", 100 * *share);
    std::fflush(stderr);
}

} // namespace zorcc::tool
