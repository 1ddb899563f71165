// SPDX-License-Identifier: MIT
// The SIMD tiers as the benchmarks name and choose them.
#pragma once

#include <map>
#include <string>

#include "simd/tier.h"

namespace zorcc::bench {

using Tiers = std::map<std::string, Tier>;

// The tiers of this processor by name; those up to a lower one.
inline Tiers tiersHere(Tier best = bestTier())
{
    Tiers tiers;
    for (Tier tier : {Tier::ssse3, Tier::avx2, Tier::avx512})
        if (tier <= best) tiers.emplace(nameOf(tier), tier);
    return tiers;
}

} // namespace zorcc::bench
