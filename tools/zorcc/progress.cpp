// SPDX-License-Identifier: MIT
#include "progress.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <cstdio>

namespace zorcc::tool {

using Clock = std::chrono::steady_clock;

int terminalWidth(int descriptor)
{
    constexpr int usual = 80;
    if (isatty(descriptor) != 1) return 0;
    winsize window{};
    return ioctl(descriptor, TIOCGWINSZ, &window) == 0 && window.ws_col > 0 ? window.ws_col : usual;
}

Progress::Progress(const Reader& reader)
    : from(reader), terminal(isatty(STDERR_FILENO) == 1), begin(Clock::now()), last(begin)
{
}

Progress::~Progress()
{
    if (shown) std::fputs("\r\x1b[K", stderr);
}

std::string Progress::line(int pictures, double seconds) const
{
    char text[120];
    std::snprintf(text, sizeof text, "%d pictures, %.1f a second", pictures, pictures / seconds);
    std::string whole = text;
    if (const auto share = from.progress(); share && *share > 0) {
        const double left = seconds / *share - seconds;
        std::snprintf(text, sizeof text, ", %.0f %%, %d:%02d left", 100 * *share, static_cast<int>(left) / 60,
                      static_cast<int>(left) % 60);
        whole += text;
    }
    return whole + ": " + from.path();
}

void Progress::update(int pictures)
{
    const Clock::time_point now = Clock::now();
    if (!terminal || now - last < std::chrono::milliseconds(100)) return;
    last = now;
    shown = true;
    // One column stays free: a full line would wrap.
    const std::string text = line(pictures, std::chrono::duration<double>(now - begin).count())
                                 .substr(0, static_cast<std::size_t>(terminalWidth(STDERR_FILENO)) - 1);
    std::fprintf(stderr, "\r\x1b[K%s", text.c_str());
    std::fflush(stderr);
}

} // namespace zorcc::tool
