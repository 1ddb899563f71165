// SPDX-License-Identifier: MIT
#include "bench/peers/peer.h"
#include "simd/tier.h"

namespace zorcc::bench {

namespace {

// The same function by another method of dithering, on the best tier.
template <ZorDitherMethod method> Work prepare(const Job& job)
{
    interface::Extra arguments = job.arguments;
    arguments.method = method;
    return [=] { job.function(job.source, job.destination, job.size, arguments); };
}

void selectBestTier() { setActiveTier(bestTier()); }

} // namespace

Library ourselves()
{
    constexpr auto ordered = prepare<zorDitherMethodOrdered>;
    constexpr auto fs = prepare<zorDitherMethodFloydSteinberg>;
    return {"",
            {{"zoriReduceBits_8u_C1R none", "zorcc ordered", ordered, selectBestTier},
             {"zoriReduceBits_8u_C1R jjn", "zorcc fs", fs, selectBestTier},
             {"zoriReduceBits_8u_C1R stucki", "zorcc fs", fs, selectBestTier}}};
}

} // namespace zorcc::bench
