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

// Another function on the same pixels, which has a part of this one's name replaced.
Work prepareSister(const Job& job, std::string_view part, std::string_view replacement)
{
    std::string name(job.function.name);
    name.replace(name.find(part), part.size(), replacement);
    return [=, sister = interface::findFunction(name)] { (*sister)(job.source, job.destination, job.size); };
}

// The function that cuts down where this one dithers; the one on bytes.
Work prepareUndithered(const Job& job) { return prepareSister(job, "Dither", ""); }
Work prepareBytes(const Job& job) { return prepareSister(job, "_16u_", "_8u_"); }

void selectBestTier() { setActiveTier(bestTier()); }

} // namespace

Library ourselves()
{
    constexpr auto ordered = prepare<zorDitherMethodOrdered>;
    constexpr auto fs = prepare<zorDitherMethodFloydSteinberg>;
    Library library{"",
                    {{"zoriReduceBits_8u_C1R none", "zorcc ordered", ordered, selectBestTier},
                     {"zoriReduceBits_8u_C1R jjn", "zorcc fs", fs, selectBestTier},
                     {"zoriReduceBits_8u_C1R stucki", "zorcc fs", fs, selectBestTier},
                     {"zoriRGBToYCC_16u_C3R", "zorcc 8u", prepareBytes, selectBestTier},
                     {"zoriYCCToRGB_16u_C3R", "zorcc 8u", prepareBytes, selectBestTier}}};
    for (const interface::Function& function : interface::functions())
        if (function.dithers)
            library.peers.push_back({function.name, "zorcc undithered", prepareUndithered, selectBestTier});
    return library;
}

} // namespace zorcc::bench
