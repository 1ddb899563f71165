// SPDX-License-Identifier: MIT
// What the comparison measures, and the speeds that the library is held to.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "simd/tier.h"
#include "zorcc.h"

namespace zorcc::bench {

// Speeds in Mpx/s.
struct PeerSpeed {
    std::string name;
    bool ssse3Only;
    double speed;
};

struct Result {
    std::string_view function;
    ZorSize size;
    std::map<Tier, double> ours;
    std::vector<PeerSpeed> peers; // and a memcpy of the same traffic
};

// Prints every target that these results bear on, and whether it is met; true if all are.
bool checkTargets(const std::vector<Result>& results);

} // namespace zorcc::bench
