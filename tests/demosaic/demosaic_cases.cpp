// SPDX-License-Identifier: MIT
#include <stdexcept>

#include "tests/demosaic/mosaic_checker.h"
#include "zorcc.h"

namespace zorcc::test {

namespace {

using reference::adaptive;
using reference::alongGradients;

template <auto function, class Sample>
ZorStatus plain(const void* src, ZorRect region, ZorSize size, int srcStep, void* dst, int dstStep, ZorBayerGrid grid,
                void*, int)
{
    return function(static_cast<const Sample*>(src), region, size, srcStep, static_cast<Sample*>(dst), dstStep, grid,
                    77);
}

template <auto function, class Sample>
ZorStatus withScratch(const void* src, ZorRect region, ZorSize size, int srcStep, void* dst, int dstStep,
                      ZorBayerGrid grid, void* scratch, int scratchStep)
{
    return function(static_cast<const Sample*>(src), region, size, srcStep, static_cast<Sample*>(dst), dstStep, grid,
                    static_cast<Sample*>(scratch), scratchStep);
}

constexpr Method table[] = {
    {"zoriCFAToRGB_8u_C1C3R", alongGradients, 8, 2, plain<zoriCFAToRGB_8u_C1C3R, std::uint8_t>},
    {"zoriCFAToRGB_16u_C1C3R", alongGradients, 16, 2, plain<zoriCFAToRGB_16u_C1C3R, std::uint16_t>},
    {"zoriDemosaicAHD_8u_C1C3R", adaptive, 8, 5, withScratch<zoriDemosaicAHD_8u_C1C3R, std::uint8_t>},
    {"zoriDemosaicAHD_16u_C1C3R", adaptive, 16, 5, withScratch<zoriDemosaicAHD_16u_C1C3R, std::uint16_t>},
};

} // namespace

std::span<const Method> methods() { return table; }

} // namespace zorcc::test
