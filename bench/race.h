// SPDX-License-Identifier: MIT
// Fair timing of several ways to do one job.
#pragma once

#include <chrono>
#include <functional>
#include <limits>
#include <string>
#include <vector>

namespace zorcc::bench {

// By the clock on the wall.
double secondsOf(const auto& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

struct Runner {
    std::string name;
    std::function<void()> select; // run before each batch, outside the clock; may be empty
    std::function<void()> work;
    double seconds = std::numeric_limits<double>::infinity(); // of one call
};

// The runners take turns in short batches, so that a change of the clock rate or other load affects all of them;
// each keeps the mean of its fastest batch. All get the same share of the time: a slow one has fewer turns.
void race(std::vector<Runner>& runners, double seconds);

} // namespace zorcc::bench
