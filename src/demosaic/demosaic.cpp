// SPDX-License-Identifier: MIT
// Exported demosaicing: gradient-directed interpolation, and adaptive homogeneity-directed demosaicing.
#include "zorcc/demosaic.h"

#include <algorithm>

#include "demosaic/demosaic_rows.h"

using namespace zorcc;

namespace {

Region regionInside(ZorRect rect, ZorSize size)
{
    const auto inside = [](int64_t position, int limit) {
        return static_cast<int>(std::clamp<int64_t>(position, 0, limit));
    };
    return {inside(rect.x, size.width), inside(rect.y, size.height), inside(int64_t{rect.x} + rect.width, size.width),
            inside(int64_t{rect.y} + rect.height, size.height)};
}

// The checks in their order, then the driver. The smallest image has `minSize` pixels on each side.
template <class... Scratch>
ZorStatus demosaic(int minSize, void (&driver)(const Mosaic&, const Scratch&...), const Image& from, const Image& to,
                   ZorSize size, ZorRect roi, ZorBayerGrid grid, const Scratch&... scratch)
{
    if (const ZorStatus status = check({.minimum = {minSize, minSize}}, from, to, size); status < 0) return status;
    if (static_cast<uint32_t>(grid) > zorBayerGRBG) return zorStatusBadArgument;
    const Region region = regionInside(roi, size);
    if (region.x0 < region.x1 && region.y0 < region.y1) driver({from, to, size, region, grid}, scratch...);
    return zorStatusOk;
}

} // namespace

ZorStatus zoriCFAToRGB_8u_C1C3R(const uint8_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep, uint8_t* pDst,
                                int dstStep, ZorBayerGrid grid, int)
{
    const Image src = interleaved(pSrc, srcStep), dst = interleaved(pDst, dstStep);
    return demosaic(2, bayerRows().myCFAToRGB_8u_C1C3R, src, dst, srcSize, srcRoi, grid);
}

ZorStatus zoriCFAToRGB_16u_C1C3R(const uint16_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep, uint16_t* pDst,
                                 int dstStep, ZorBayerGrid grid, int)
{
    const Image src = interleaved(pSrc, srcStep), dst = interleaved(pDst, dstStep);
    return demosaic(2, bayerRows().myCFAToRGB_16u_C1C3R, src, dst, srcSize, srcRoi, grid);
}

ZorStatus zoriDemosaicAHD_8u_C1C3R(const uint8_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep, uint8_t* pDst,
                                   int dstStep, ZorBayerGrid grid, uint8_t* pTmp, int tmpStep)
{
    const Image src = interleaved(pSrc, srcStep), dst = interleaved(pDst, dstStep), tmp = interleaved(pTmp, tmpStep);
    return demosaic(5, demosaicAhdRows().myDemosaicAHD_8u_C1C3R, src, dst, srcSize, srcRoi, grid, tmp);
}

ZorStatus zoriDemosaicAHD_16u_C1C3R(const uint16_t* pSrc, ZorRect srcRoi, ZorSize srcSize, int srcStep, uint16_t* pDst,
                                    int dstStep, ZorBayerGrid grid, uint16_t* pTmp, int tmpStep)
{
    const Image src = interleaved(pSrc, srcStep), dst = interleaved(pDst, dstStep), tmp = interleaved(pTmp, tmpStep);
    return demosaic(5, demosaicAhdRows().myDemosaicAHD_16u_C1C3R, src, dst, srcSize, srcRoi, grid, tmp);
}
