// SPDX-License-Identifier: MIT
// The SIMD tiers and the one that calls run on. Every row file is compiled once for each tier, in a namespace of its
// name; all tiers give the same bytes.
#pragma once

namespace zorcc {

enum class Tier {
    ssse3, // 128 bits: what every processor that the library supports has
    avx2,  // 256 bits
    avx512 // 512 bits: F, BW, DQ, VL, VBMI, VNNI, GFNI
};

const char* nameOf(Tier tier);

// The best tier of this processor.
Tier bestTier();

// The tier that calls run on: bestTier(), unless a test or a benchmark has chosen a lower one. The library exports no
// way to change it.
Tier activeTier();
void setActiveTier(Tier tier);

} // namespace zorcc

// The driver `function` of the active tier. The drivers must be declared in every tier's namespace (each_tier.h).
#define ZORCC_ON_TIER(function)                                                                                        \
    (::zorcc::activeTier() == ::zorcc::Tier::avx512 ? ::zorcc::avx512::function                                        \
     : ::zorcc::activeTier() == ::zorcc::Tier::avx2 ? ::zorcc::avx2::function                                          \
                                                    : ::zorcc::ssse3::function)
