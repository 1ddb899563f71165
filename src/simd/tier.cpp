// SPDX-License-Identifier: MIT
#include "simd/tier.h"

#include <algorithm>

namespace zorcc {

const char* nameOf(Tier tier) { return tier == Tier::avx512 ? "avx512" : tier == Tier::avx2 ? "avx2" : "ssse3"; }

namespace {

Tier bestTierOfProcessor()
{
    // These queries cover the operating system's side, too: whether it saves the wide registers.
    if (__builtin_cpu_supports("avx512f") && __builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512dq") &&
        __builtin_cpu_supports("avx512vl") && __builtin_cpu_supports("avx512vbmi") &&
        __builtin_cpu_supports("avx512vnni") && __builtin_cpu_supports("gfni"))
        return Tier::avx512;
    return __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma") ? Tier::avx2 : Tier::ssse3;
}

} // namespace

Tier bestTier() { return std::min(bestTierOfProcessor(), Tier{ZORCC_TIERS_BUILT - 1}); }

Tier currentTier = Tier::ssse3;

namespace {

__attribute__((constructor)) void chooseTier()
{
    __builtin_cpu_init();
    currentTier = bestTier();
}

} // namespace

} // namespace zorcc
