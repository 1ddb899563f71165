// SPDX-License-Identifier: MIT
// What the comparison measures.
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
    std::vector<PeerSpeed> peers; // also functions of ours, and a memcpy of the same traffic

    // The fastest of other libraries, held to SSSE3 or not; null if there is none.
    const PeerSpeed* bestPeer(bool ssse3Only = false) const;

    const PeerSpeed* find(std::string_view peer) const;
};

void print(const Result& result);

// For each tier the geomean of our speed over the best peer's, and the pairs of function and size that are worst; the
// same of the time of a call on small images.
void printSummary(const std::vector<Result>& results);

// The highest tier, the versions of the libraries, and all results.
void writeJson(const std::string& path, const std::string& tier, const std::vector<std::string>& versions,
               const std::vector<Result>& results);

} // namespace zorcc::bench
