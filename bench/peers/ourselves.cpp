// SPDX-License-Identifier: MIT
#include <cstring>
#include <memory>

#include "bench/peers/peer.h"
#include "bench/picture.h"
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

// Another function, on images of its own.
Work prepareTwin(const interface::Function& twin, const Job& job)
{
    return [&twin, size = job.size, from = std::make_shared<Picture>(*twin.source, job.size),
            to = std::make_shared<Picture>(*twin.destination, job.size)] { twin(from->image, to->image, size); };
}

// Functions that are measured against one with as much to do, or whose way is the same up to a step.
struct Twins {
    std::string_view function, twin;
};
constexpr Twins twins[] = {
    {"zoriRGBToYCoCg_8u_C3P3R", "zoriRGBToYCbCr_8u_C3P3R"},
    {"zoriYCoCgToRGB_8u_P3C3R", "zoriYCbCrToRGB_8u_P3C3R"},
    {"zoriBGRToYCoCg_8u16s_C3P3R", "zoriRGBToYCoCg_8u_C3P3R"},
    {"zoriBGRToYCoCg_Rev_8u16s_C3P3R", "zoriRGBToYCoCg_8u_C3P3R"},
    {"zoriSBGRToYCoCg_16s_C3P3R", "zoriRGBToYCoCg_8u_C3P3R"},
    {"zoriSBGRToYCoCg_Rev_16s_C3P3R", "zoriRGBToYCoCg_8u_C3P3R"},
    {"zoriSBGRToYCoCg_16s32s_C3P3R", "zoriRGBToYCoCg_8u_C3P3R"},
    {"zoriSBGRToYCoCg_Rev_16s32s_C3P3R", "zoriRGBToYCoCg_8u_C3P3R"},
    {"zoriYCoCgToBGR_16s8u_P3C3R", "zoriYCoCgToRGB_8u_P3C3R"},
    {"zoriYCoCgToBGR_Rev_16s8u_P3C3R", "zoriYCoCgToRGB_8u_P3C3R"},
    {"zoriYCoCgToSBGR_16s_P3C3R", "zoriYCoCgToRGB_8u_P3C3R"},
    {"zoriYCoCgToSBGR_Rev_16s_P3C3R", "zoriYCoCgToRGB_8u_P3C3R"},
    {"zoriYCoCgToSBGR_32s16s_P3C3R", "zoriYCoCgToRGB_8u_P3C3R"},
    {"zoriYCoCgToSBGR_Rev_32s16s_P3C3R", "zoriYCoCgToRGB_8u_P3C3R"},
    {"zoriBGRToYCbCr411_8u_C3P3R", "zoriBGRToYCbCr420_8u_C3P3R"},
    {"zoriRGBToCbYCr422Gamma_8u_C3C2R", "zoriRGBToCbYCr422_8u_C3C2R"},
    {"zoriRGBToYCC_16u_C3R", "zoriRGBToYCC_8u_C3R"},
    {"zoriYCCToRGB_16u_C3R", "zoriYCCToRGB_8u_C3R"},
};

void selectBestTier() { setActiveTier(highestTier); }

} // namespace

Library ourselves()
{
    constexpr auto ordered = prepare<zorDitherMethodOrdered>;
    constexpr auto fs = prepare<zorDitherMethodFloydSteinberg>;
    Library library{"",
                    {{"zoriReduceBits_8u_C1R none", "zorcc ordered", ordered, selectBestTier},
                     {"zoriReduceBits_8u_C1R jjn", "zorcc fs", fs, selectBestTier},
                     {"zoriReduceBits_8u_C1R stucki", "zorcc fs", fs, selectBestTier}}};
    const auto addTwin = [&](std::string_view function, const char* name, std::string_view twin) {
        const auto prepareIt = [&found = *interface::findFunction(twin)](const Job& job) {
            return prepareTwin(found, job);
        };
        library.peers.push_back({function, name, prepareIt, selectBestTier});
    };
    for (const interface::Function& function : interface::functions())
        if (function.dithers) {
            std::string name(function.name);
            name.erase(name.find("Dither"), std::strlen("Dither"));
            addTwin(function.name, "zorcc undithered", name);
        }
    for (const auto& [function, twin] : twins) addTwin(function, "zorcc twin", twin);
    return library;
}

} // namespace zorcc::bench
