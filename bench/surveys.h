// SPDX-License-Identifier: MIT
// Lists over all functions which show those that fall behind. Each is printed worst first.
#pragma once

#include <regex>

namespace zorcc::bench {

// Speed in multiples of a memcpy of the same bytes in the second-level cache, and in multiples of the median of its
// family and variant: the ten slowest by each. True, there being no limit.
bool printSlowest(const std::regex& filter);

// Speed at 8K relative to memcpy, in multiples of that at 1080p, for one function of every family and variant. True if
// none is below 0.9.
bool printGrowth(const std::regex& filter);

// Speed on two threads in multiples of that on one, by the clock on the wall, of every function that forks at 1080p.
// True if none is slower.
bool printForks(const std::regex& filter);

// The same while something else keeps one processor busy, medians of 100 calls, for one function of every family and
// variant: at 1080p, and at 8K where a call takes less than 10 ms. True if no call of 10 ms takes twice as long.
bool printBusy(const std::regex& filter);

} // namespace zorcc::bench
