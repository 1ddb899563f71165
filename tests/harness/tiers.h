// SPDX-License-Identifier: MIT
#pragma once

#include <span>

#include "simd/tier.h"

namespace zorcc::test {

// The tiers that this processor can run.
inline std::span<const Tier> tiersHere()
{
    static constexpr Tier all[] = {Tier::ssse3, Tier::avx2, Tier::avx512};
    return std::span(all).first(static_cast<std::size_t>(bestTier()) + 1);
}

// Chooses a tier for as long as it lives.
class OnTier {
public:
    explicit OnTier(Tier tier) : before(activeTier()) { setActiveTier(tier); }
    ~OnTier() { setActiveTier(before); }
    OnTier(const OnTier&) = delete;
    OnTier& operator=(const OnTier&) = delete;

private:
    Tier before;
};

} // namespace zorcc::test
