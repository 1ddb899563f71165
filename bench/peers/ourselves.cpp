// SPDX-License-Identifier: MIT
#include <cstring>

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

// The function that cuts down where this one dithers.
Work prepareUndithered(const Job& job)
{
    std::string name(job.function.name);
    name.erase(name.find("Dither"), std::strlen("Dither"));
    return [=, twin = interface::findFunction(name)] { (*twin)(job.source, job.destination, job.size); };
}

void selectBestTier() { setActiveTier(bestTier()); }

} // namespace

Library ourselves()
{
    constexpr auto ordered = prepare<zorDitherMethodOrdered>;
    constexpr auto fs = prepare<zorDitherMethodFloydSteinberg>;
    Library library{"",
                    {{"zoriReduceBits_8u_C1R none", "zorcc ordered", ordered, selectBestTier},
                     {"zoriReduceBits_8u_C1R jjn", "zorcc fs", fs, selectBestTier},
                     {"zoriReduceBits_8u_C1R stucki", "zorcc fs", fs, selectBestTier}}};
    for (const interface::Function& function : interface::functions())
        if (function.dithers)
            library.peers.push_back({function.name, "zorcc undithered", prepareUndithered, selectBestTier});
    return library;
}

} // namespace zorcc::bench
