// SPDX-License-Identifier: MIT
// The SIMD tiers as the benchmarks name and choose them.
#pragma once

#include <map>
#include <string>

#include "simd/tier.h"

namespace zorcc::bench {

// The tiers of this processor by name.
inline std::map<std::string, Tier> tiersHere()
{
    std::map<std::string, Tier> tiers;
    for (Tier tier : {Tier::ssse3, Tier::avx2, Tier::avx512})
        if (tier <= bestTier()) tiers.emplace(nameOf(tier), tier);
    return tiers;
}

} // namespace zorcc::bench
