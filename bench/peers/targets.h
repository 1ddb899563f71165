// SPDX-License-Identifier: MIT
// The speeds that the library must reach.
#pragma once

#include "bench/peers/results.h"

namespace zorcc::bench {

// Prints the targets for these results that are missed, and those for tiers that they lack; true if none is missed. The
// geomean is judged where the results are of all functions.
bool checkTargets(const std::vector<Result>& results, bool areAll);

} // namespace zorcc::bench
