// SPDX-License-Identifier: MIT
// What the comparison measures, and the speeds that the library must reach.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "interface/functions.h"
#include "simd/tier.h"

namespace zorcc::bench {

// Speeds in Mpx/s.
struct PeerSpeed {
    std::string name;
    bool ssse3Only;
    double speed;
};

struct Result {
    const interface::Function* function;
    std::string name; // of the function and its variant
    ZorSize size;
    std::map<Tier, double> ours;
    std::vector<PeerSpeed> peers; // and a memcpy of the same traffic
};

// Prints every target for these results, and whether it is met; true if all are.
bool checkTargets(const std::vector<Result>& results);

} // namespace zorcc::bench
