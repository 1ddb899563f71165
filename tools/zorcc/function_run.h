// SPDX-License-Identifier: MIT
// Running one function of the library, and measuring.
#pragma once

#include <algorithm>
#include <chrono>
#include <mutex>
#include <string>
#include <vector>

#include "picture.h"

namespace zorcc::tool {

using interface::Function;

// The functions that made the pictures, and the time spent in the library alone. Several threads may add to it.
class Stats {
public:
    explicit Stats(int runs = 1) : repeat(runs) {}

    const int repeat; // runs on each picture, of which the fastest counts

    // Adds a picture of this size.
    void add(const std::string& functions, ZorSize size, double seconds);

    // One line: "zoriRGBToYUV_8u_C3R: 1 picture of 1920x1080, 5012.3 megapixels/s (best of 3)".
    std::string line() const;

private:
    std::mutex mutex;
    int pictures = 0;
    double megapixels = 0, time = 0;
    std::string names; // of the last picture
    ZorSize size{};
};

// Prints the lines of measurements, to stderr where standard output is one of the results.
void printStats(const std::string& lines, const std::vector<std::string>& results);

// The seconds that the fastest of `repeat` runs takes.
template <class Work> double fastestRun(int repeat, Work work)
{
    using Clock = std::chrono::steady_clock;
    Clock::duration best = Clock::duration::max();
    for (int i = 0; i < repeat; ++i) {
        const Clock::time_point start = Clock::now();
        work();
        best = std::min(best, Clock::now() - start);
    }
    return std::chrono::duration<double>(best).count();
}

// Runs a function on a picture of its source format; the result has the same size, whole and visible. Samples that
// the function leaves alone are 0, alpha 255. Throws Cause for an error and leaves a warning in `status`. Adds the
// time of the fastest of `repeat` runs to `seconds`.
inline constexpr interface::Extra opaque {
    .alpha = 255
};
Picture run(const Function& function, const Picture& source, int repeat, double& seconds,
            const interface::Extra& arguments = opaque, ZorStatus* status = nullptr);

} // namespace zorcc::tool
