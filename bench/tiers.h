// SPDX-License-Identifier: MIT
// The SIMD tiers as the benchmarks name and choose them.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "simd/tier.h"

namespace zorcc::bench {

constexpr std::string_view tierName(Tier tier)
{
    return tier == Tier::avx512 ? "avx512" : tier == Tier::avx2 ? "avx2" : "ssse3";
}

// The tiers of this processor by name.
inline std::map<std::string, Tier> tiersHere()
{
    std::map<std::string, Tier> tiers;
    for (Tier tier : {Tier::ssse3, Tier::avx2, Tier::avx512})
        if (tier <= bestTier()) tiers.emplace(tierName(tier), tier);
    return tiers;
}

} // namespace zorcc::bench
